#pragma once

#include <system_error>

#include <windows.h>

namespace vaticlo {

/// What the call that has just failed says.
[[nodiscard]] inline std::error_code ultimoErrore() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

}  // namespace vaticlo
