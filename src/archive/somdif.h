#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "archive/archivio.h"

namespace vaticlo {

/// The ten pairs of positions of a wheel, a column of the sum and distance view each.
struct CoppiaPosizioni {
  std::string_view testa;
  int p, q;
};
inline constexpr std::array<CoppiaPosizioni, 10> kCoppiePosizioni = {{{"1°- 2°", 2, 1},
                                                                      {"1°- 3°", 3, 1},
                                                                      {"1°- 4°", 4, 1},
                                                                      {"1°- 5°", 5, 1},
                                                                      {"2°- 3°", 3, 2},
                                                                      {"2°- 4°", 4, 2},
                                                                      {"2°- 5°", 5, 2},
                                                                      {"3°- 4°", 4, 3},
                                                                      {"3°- 5°", 5, 3},
                                                                      {"4°- 5°", 5, 4}}};

inline constexpr int kRuoteSomDif = 10;  ///< Bari to Venezia; the Nazionale takes no part

enum class TipoSomDif { Ciclometrica, Matematica, Somma };

/// Takes 90 away as long as the value is above 90: 91 gives 1, 90 stays 90.
[[nodiscard]] int Riduci90(int x);

/// The way between two numbers on the circle of ninety, 0 to 45.
[[nodiscard]] std::int16_t DistanzaCiclo(int a, int b);

/// The plain difference of two numbers, without sign.
[[nodiscard]] int Differenza(int a, int b);

/// The values of one draw: [column][wheel - 1]. A missing number counts as 0, with no test.
using ValoriSomDif = std::array<std::array<int, kRuoteSomDif>, kCoppiePosizioni.size()>;

/// Fails with Errore::Indice for a draw outside the grid.
[[nodiscard]] ValoriSomDif CalcolaSomDif(const ArchivioEstrazioni& archivio, int estrazione, TipoSomDif tipo);

}  // namespace vaticlo
