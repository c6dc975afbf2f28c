#pragma once

#include <utility>
#include <vector>

#include "analysis/insieme_numeri.h"
#include "program/previsione.h"

namespace vaticlo {

inline constexpr int kEstratti = 5;  ///< of which so many are drawn

/// The bets of a prediction on one wheel, as sets: what wins there when five different numbers of the urn
/// come out. Numbers that are not in the urn are in no set, since they never do.
struct GiocataSuRuota {
  /// A combination that has a number more than once: each number with its places.
  using Ripetuta = std::vector<std::pair<int, int>>;

  InsiemeNumeri singoli;              ///< any of them wins
  std::vector<InsiemeNumeri> gruppi;  ///< any two of one group win
  /// Two to five places found win, more do not: so a number more may turn a hit into none.
  std::vector<Ripetuta> ripetute;
  InsiemeNumeri coinvolti;  ///< all numbers of `gruppi` and `ripetute`

  /// Nothing can win.
  [[nodiscard]] bool vuota() const { return singoli.vuoto() && coinvolti.vuoto(); }
  [[nodiscard]] bool vince(const InsiemeNumeri& estratti) const {
    if (singoli.neHaUnoDi(estratti)) return true;
    // Most draws end here: a group needs two numbers, a number with more places may do alone.
    return (coinvolti.neHaDueDi(estratti) || !ripetute.empty()) && vinceInsieme(estratti);
  }

 private:
  [[nodiscard]] bool vinceInsieme(const InsiemeNumeri& estratti) const;
};

/// The bets of a prediction. They win where giudicaColpo() finds a hit.
struct Giocata {
  GiocataSuRuota suRuota;  ///< on each wheel of play
  GiocataSuRuota altrove;  ///< on every other wheel: the ambi, with `Tutte`
};

[[nodiscard]] Giocata giocataDi(const Previsione& previsione);

}  // namespace vaticlo
