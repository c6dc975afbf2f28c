#pragma once

#include <filesystem>

#include "platform/cartella_intera.h"

namespace vaticlo {

/// Puts files in the place of those that are in a folder: each one whole, those that are not among the new
/// ones taken away last. Fails as scriviFile() and eliminaFile() do, after all has been put back as far as
/// the disk lets it. Whoever calls holds the folder.
void sostituisciTutti(const std::filesystem::path& dove, const FilePerNome& presenti,
                      const FilePerNome& nuovi);

}  // namespace vaticlo
