#pragma once

#include <cerrno>
#include <system_error>

namespace vaticlo {

/// What the call that has just failed says.
[[nodiscard]] inline std::error_code ultimoErrore() { return {errno, std::generic_category()}; }

}  // namespace vaticlo
