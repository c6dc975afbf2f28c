#pragma once

#include <string>

namespace vaticlo {

/// A day, a month or the like (0 to 99) with both its digits.
[[nodiscard]] inline std::string dueCifre(int valore) {
  return (valore < 10 ? "0" : "") + std::to_string(valore);
}

}  // namespace vaticlo
