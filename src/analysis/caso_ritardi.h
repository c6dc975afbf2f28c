#pragma once

#include <vector>

#include "analysis/ritardi.h"

namespace vaticlo {

/// What chance gives for frequencies and delays: in every draw that counts each drawn wheel shows five of the
/// ninety numbers, all sets equally likely. The draws have no memory: none of this says anything of the next.
class CasoDeiRitardi {
 public:
  CasoDeiRitardi(const Ritardi& ritardi, Sorte sorte);

  /// How often a number (a pair) is to be expected.
  [[nodiscard]] double frequenzaAttesa() const;
  /// The chance that a given number (pair) has now a delay of at least so many draws.
  [[nodiscard]] double probabilitaRitardo(int almeno) const;
  /// The chance that the longest delay of a given number (pair) is of at least so many draws. It takes a step
  /// for each draw.
  [[nodiscard]] double probabilitaRitardoMassimo(int almeno) const;
  /// The longest delay of all numbers (pairs) that chance reaches in every second archive of this length;
  /// they are taken for independent of each other, which they nearly are.
  [[nodiscard]] int ritardoMassimoMediano() const;

 private:
  /// The chance that it comes out on none of the wheels of draws `da` (from 0) to `a`, the last one left out.
  [[nodiscard]] double assenza(std::size_t da, std::size_t a) const;

  double uscita_;                ///< the chance to come out on one wheel
  std::vector<double> nessuna_;  ///< not to come out on n wheels
  int righe_;                    ///< how many numbers (pairs) there are
  std::vector<int> ruoteFinoA_;  ///< wheels drawn in the first n draws
};

}  // namespace vaticlo
