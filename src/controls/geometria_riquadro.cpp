#include "controls/geometria_riquadro.h"

namespace vaticlo {

GeometriaRiquadro disponiRiquadro(Misura controllo, Misura etichetta) {
  const int linea = etichetta.altezza / 2;
  const int sopra = etichetta.larghezza > 0 ? etichetta.altezza : linea + kAngolo;
  return {
      .cornice = {0, linea, controllo.larghezza, controllo.altezza - linea},
      .didascalia = {kSinistraDidascalia, 0, etichetta.larghezza, etichetta.altezza},
      .interno = {kAngolo, sopra, controllo.larghezza - 2 * kAngolo, controllo.altezza - sopra - kAngolo},
  };
}

}  // namespace vaticlo
