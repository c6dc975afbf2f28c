#pragma once

#include "methods/giudizio.h"

namespace vaticlo {

enum class StatoPrevisione { Vincente, Negativa, InGioco };

/// How a prediction has done.
struct EsitoPrevisione {
  StatoPrevisione stato = StatoPrevisione::Negativa;
  int colpo = 0;  ///< of the win; 0 without one
};

/// Judges a prediction by the policy of the statistics, writing nothing: it ends with the first colpo that
/// wins, after all its bets were tried and passed to `vincite`, or with the first one that lies after
/// `ultima`, the last stored draw; `Tutte` is tried with every wheel. Failures of giudicaColpo().
[[nodiscard]] EsitoPrevisione giudicaPrevisione(const Previsione& previsione, const RegoleVincita& regole,
                                                int ultima, EsitoColpo& vincite);

}  // namespace vaticlo
