#include "controls/stato_pulsante.h"

namespace vaticlo {

void StatoPulsante::setState(int state) {
  state_ = state;
  if (state == 1) riposo_ = AspettoPulsante::Secondo;
  if (state == 0) riposo_ = AspettoPulsante::Normale;
  Aggiorna();
}

AspettoPulsante StatoPulsante::aspetto() const {
  if (!Enabled()) return AspettoPulsante::Disabilitato;
  switch (fase()) {
    case Fase::Premuto:
      return AspettoPulsante::Premuto;
    case Fase::Sorvolato:
      return AspettoPulsante::Sorvolato;
    case Fase::Riposo:
      break;
  }
  return riposo_;
}

}  // namespace vaticlo
