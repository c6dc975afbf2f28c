#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace vaticlo {

/// The bytes of files by their names.
using FilePerNome = std::map<std::string, std::vector<std::uint8_t>>;

/// Makes a folder of those files, wholly or not at all. They are written in a folder ".nuova" beside it,
/// brought to the disk all at once and then given their name: whatever stops the program or the machine, the
/// folder is there with all of them or not there. What a killed program leaves goes with the next folder made
/// there; so whoever makes one holds what they lie in. Fails with Errore::FileEsistente when there is one of
/// that name, DispositivoIO, DiscoPieno, AccessoAlFile or CartellaOccupata: there is none of it then. Folders
/// above it are made; throws std::filesystem::filesystem_error where they can't be.
void scriviCartella(const std::filesystem::path& cartella, const FilePerNome& file);

/// Takes a folder away with all that is in it: a reader finds all of it or none. What a killed program
/// leaves, under a hidden name, goes with the next folder taken away there. Fails as rinominaFile() does: the
/// folder is still there then.
void eliminaCartella(const std::filesystem::path& cartella);

}  // namespace vaticlo
