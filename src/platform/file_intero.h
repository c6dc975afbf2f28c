#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace vaticlo {

/// Opens the file for reading and writing, reads as many bytes as `dati` holds, closes it. A missing file is
/// created empty; what a short one does not have is 0; what stands behind in a longer one is left out.
/// Failure 75 (no access, no plain file), 76 (no folder) or 57 (reading went wrong).
void leggiFile(const std::filesystem::path& percorso, std::span<std::uint8_t> dati);

/// Opens the file in the same way and writes `dati` from its first byte; a longer file keeps its tail. The
/// room is taken before the first byte is written, so a full disk (failure 61) leaves the file as it was.
void scriviFile(const std::filesystem::path& percorso, std::span<const std::uint8_t> dati);

/// The whole content of a file that must exist: failure 53 when it does not. A pipe or a device is read to
/// its end too; failure 57 when that lies beyond 64 MiB.
[[nodiscard]] std::string contenutoFile(const std::filesystem::path& percorso);

}  // namespace vaticlo
