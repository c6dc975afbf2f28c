#pragma once

#include <filesystem>
#include <functional>

#include "archive/importazione.h"
#include "program/programma.h"

namespace vaticlo {

/// The archive that a public text file of draws describes. `avanzamento` is told each percent that is done.
/// ErroreImportazione for a text that can't be taken, a failure for a file that can't be read.
[[nodiscard]] ArchivioEstrazioni leggiEstrazioni(const std::filesystem::path& file,
                                                 const std::function<void(int)>& avanzamento = {});

/// Asks for a public text file of draws and builds the archive anew from it, after a question when draws are
/// there already. A file that can't be taken is told of, with the number of the line that is wrong, and the
/// archive is as it was. Failures of the archive's own file go on to the caller. True when the archive is a
/// new one.
bool importaEstrazioniDaFile(Programma& programma);

}  // namespace vaticlo
