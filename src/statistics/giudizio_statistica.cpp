#include "statistics/giudizio_statistica.h"

namespace vaticlo {

EsitoPrevisione giudicaPrevisione(const Previsione& previsione, const RegoleVincita& regole, int ultima,
                                  EsitoColpo& vincite) {
  for (int colpo = 1; colpo <= previsione.Colpi; ++colpo) {
    const int estrazione = previsione.EstrazioneCalcolo + colpo;
    if (estrazione > ultima) return {StatoPrevisione::InGioco};
    if (giudicaColpo(previsione, regole, estrazione, FlagTutte::OgniRuota, vincite))
      return {StatoPrevisione::Vincente, colpo};
  }
  return {StatoPrevisione::Negativa};
}

}  // namespace vaticlo
