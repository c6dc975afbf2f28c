#pragma once

#include <string>

#include "archive/regole.h"
#include "program/previsione.h"

namespace vaticlo {

/// "ancora 4 colpi": for how many draws a prediction is still played.
[[nodiscard]] std::string ancora(int colpi);

/// How a prediction has done by the rules of the statistics, in words: "vinta al 3° colpo: ambata 90 Ba",
/// "negativa", "in gioco, ancora 4 colpi", "non giudicabile: …". `ultima` is the last stored draw.
[[nodiscard]] std::string esitoInParole(const Previsione& previsione, const RegoleVincita& regole,
                                        int ultima);

}  // namespace vaticlo
