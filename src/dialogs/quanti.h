#pragma once

#include <string>

namespace vaticlo {

/// A number with what it counts: "1 prova", "2 prove".
inline std::string quanti(int numero, const char* uno, const char* diversi) {
  return std::to_string(numero) + " " + (numero == 1 ? uno : diversi);
}

}  // namespace vaticlo
