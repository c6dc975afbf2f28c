#pragma once

#include <system_error>

#include <windows.h>

namespace vaticlo {

/// What the call that has just failed says.
[[nodiscard]] inline std::error_code ultimoErrore() {
  const auto codice = ::GetLastError();
  // A name that no file can have names one that is not there.
  return {static_cast<int>(codice == ERROR_INVALID_NAME ? ERROR_FILE_NOT_FOUND : codice),
          std::system_category()};
}

}  // namespace vaticlo
