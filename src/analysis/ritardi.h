#pragma once

#include <vector>

#include "analysis/metodi_giudicati.h"
#include "archive/archivio.h"

namespace vaticlo {

/// A number, or a pair of numbers on one wheel, and when it came out. Delays count the draws that have the
/// wheel (with `Tutte`, any wheel).
struct RigaRitardi {
  int numero = 0;
  int altro = 0;           ///< the greater number of a pair; 0 for a single number
  int frequenza = 0;       ///< on how many drawn wheels it came out
  int ritardo = 0;         ///< draws since it last came out; all of them when it never did
  int ritardoMassimo = 0;  ///< the longest run of draws without it, the first and the present one included
};

enum class Sorte { Numeri, Ambi };

/// What came out on a wheel over an interval of draws.
struct Ritardi {
  std::vector<int> ruote;  ///< for each draw that counts: how many wheels were drawn, 1 but with `Tutte`
  std::vector<RigaRitardi> righe;  ///< the longest delay first, then by number
};

/// The 90 numbers or the 4,005 pairs on wheel 1 to 11, or on all with 12. Draws outside the archive and draws
/// without the wheel do not count.
[[nodiscard]] Ritardi ritardiDi(const ArchivioEstrazioni& archivio, int ruota, Sorte sorte,
                                IntervalloEstrazioni intervallo);

}  // namespace vaticlo
