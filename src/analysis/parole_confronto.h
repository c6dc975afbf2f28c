#pragma once

#include <string>

#include "analysis/confronto.h"

namespace vaticlo {

/// One plain sentence that says what a comparison means, and no more than its figures do: "80% di vincenti;
/// per caso se ne attendono 75%: 43 prove su 100 fanno almeno così. Il risultato non si distingue dal caso."
[[nodiscard]] std::string fraseDel(const Confronto& confronto);

/// What must be said beside the comparisons of several methods; empty for one.
[[nodiscard]] std::string avvertenzaPer(std::size_t metodi);

}  // namespace vaticlo
