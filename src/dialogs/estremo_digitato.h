#pragma once

#include <optional>
#include <string>

#include "archive/archivio.h"

namespace vaticlo {

/// What is said of a draw that is typed while there is none.
inline constexpr const char* kSenzaEstrazioni = "L'archivio non contiene ancora estrazioni!";

/// Which end of a range of draws is typed.
enum class Estremo { Primo, Ultimo };

/// The draw, 1 to `ultima`, that a text means as the end of a range: by its number, or by a date, which
/// stands for the first draw from that day on or for the last one up to it. Nothing when there is none.
[[nodiscard]] std::optional<int> estremoDigitato(const std::string& testo, Estremo estremo,
                                                 const ArchivioEstrazioni& archivio, int ultima);

}  // namespace vaticlo
