#pragma once

#include <cstdint>
#include <vector>

#include "archive/archivio.h"

namespace vaticlo {

/// For each draw of an archive the wheels that were drawn in it: bit w for wheel w (1 to 11) when its row
/// holds a number. Index 0 is no draw.
using RuoteEstratte = std::vector<std::uint16_t>;
[[nodiscard]] RuoteEstratte ruoteEstratte(const ArchivioEstrazioni& archivio);

}  // namespace vaticlo
