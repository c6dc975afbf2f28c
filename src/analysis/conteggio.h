#pragma once

#include <cstdint>

#include "analysis/giocata.h"
#include "archive/ruota.h"

namespace vaticlo {

/// Of the C(numeri, 5) sets of five that a wheel may draw, how many let no bet win. `numeri`: 5 to 90, the
/// urn. Numbers that the bets treat alike are counted together, and a choice that wins is not followed
/// further; so most predictions take some hundred steps and a combination of all ninety numbers a few. Bets
/// that treat all numbers differently take C(90, 5) = 43,949,268 steps at most, and are counted too.
[[nodiscard]] std::uint64_t estrazioniSenzaVincita(const GiocataSuRuota& giocata, int numeri = kNumeri);

/// The chance that no bet wins on a wheel that draws.
[[nodiscard]] double probabilitaSenzaVincita(const GiocataSuRuota& giocata);

}  // namespace vaticlo
