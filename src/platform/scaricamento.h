#pragma once

#include <filesystem>
#include <string>

namespace vaticlo {

/// Fetches `indirizzo` (http, https or file) into memory and then writes `destinazione` whole, in one step.
/// False on any failure, and the destination is then as it was.
[[nodiscard]] bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione);

}  // namespace vaticlo
