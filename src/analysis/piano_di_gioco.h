#pragma once

#include <cstdint>
#include <vector>

#include "analysis/giocata.h"
#include "analysis/ruote_estratte.h"

namespace vaticlo {

/// A prediction as chance plays it: on which wheels of which draws which bets are open. Its whole play lies
/// in the archive.
struct PianoDiGioco {
  int estrazione = 0;  ///< the calculation draw
  int colpi = 0;
  std::uint16_t ruote = 0;  ///< the wheels of play, a bit each
  /// The colpo in which an ambata on wheel 0 finds the date; 0 for none. Chance does not draw the dates.
  int colpoDellaData = 0;
  Giocata giocata;
};

[[nodiscard]] PianoDiGioco pianoDi(const Previsione& previsione, const ArchivioEstrazioni& archivio);

/// For each colpo, from the first one on, the chance that the prediction wins in it and not before, when
/// every wheel drawn shows five different numbers of the ninety, all sets equally likely, each wheel and draw
/// for itself. Exact but for the rounding of the products.
[[nodiscard]] std::vector<double> probabilitaPerColpo(const PianoDiGioco& piano, const RuoteEstratte& ruote);

}  // namespace vaticlo
