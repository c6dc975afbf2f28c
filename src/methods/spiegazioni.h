#pragma once

#include <string>

#include "platform/failure.h"

namespace vaticlo {

/// What the user reads about a method that the program can't read to its end.
[[nodiscard]] Spiegazione dieciPrevisioni(const std::string& metodo);
[[nodiscard]] Spiegazione previsioneIlleggibile(const std::string& metodo, int slot);
[[nodiscard]] Spiegazione ruotaTutteSola(const std::string& metodo, int slot);

}  // namespace vaticlo
