#pragma once

#include <string_view>
#include <vector>

namespace vaticlo {

/// A line of the check's report that tells an outcome.
struct RigaDiEsito {
  enum class Tipo { Vincita, Negativo, InGioco };
  int riga = 0;  ///< from 0
  Tipo tipo = Tipo::Vincita;
};

/// Where the outcomes stand in the text of the report (lines ended by LF), in order.
[[nodiscard]] std::vector<RigaDiEsito> righeDiEsito(std::string_view rapporto);

}  // namespace vaticlo
