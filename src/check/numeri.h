#pragma once

namespace vaticlo {

/// The number helpers of the check: relations between numbers of the game (n, a, b from 1 to 90) that players
/// use. Part of the check by contract, whether or not a report needs them.
[[nodiscard]] int vert(int n);         ///< reversed: 12 gives 21; 11 gives 19 and back, 9 gives 90 and back
[[nodiscard]] int Diametrale(int n);   ///< the number opposite on the circle of ninety
[[nodiscard]] int Somma30(int n);      ///< the number a third of the circle on
[[nodiscard]] int Figura(int n);       ///< the digits added up, 1 to 9
[[nodiscard]] int Decina(int n);       ///< the tens
[[nodiscard]] int Cadenza(int n);      ///< the last digit
[[nodiscard]] int Mezzadecina(int n);  ///< the twin in the other half of the ten
[[nodiscard]] int DistanzaCiclica(int a, int b);
[[nodiscard]] int DifferenzaCiclica(int a, int b);  ///< from b to a on the circle, 1 to 90
[[nodiscard]] int MinimoCinque(int a, int b, int c, int d, int e);
[[nodiscard]] int MassimoTre(int a, int b, int c);

}  // namespace vaticlo
