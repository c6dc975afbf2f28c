#pragma once

#include <optional>
#include <string>

#include "console/esito.h"
#include "program/programma.h"

namespace vaticlo {

/// Names on standard error the methods that the coming run will not judge: one that does not exist or,
/// among all, each one whose failure the run swallows.
void avvisaDeiMetodi(const Programma& programma, const std::optional<std::string>& metodo);

/// The outcome of a run: kErrore when the disk did not take its reports whole.
[[nodiscard]] Esito esitoDeiRapporti(const Programma& programma);

}  // namespace vaticlo
