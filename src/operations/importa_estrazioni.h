#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "archive/importazione.h"
#include "program/programma.h"

namespace vaticlo {

/// The archive that a public text of draws describes, given as it is or packed with zip or gzip.
/// `avanzamento` is called for each percent that is done. ErroreImportazione for what can't be taken.
[[nodiscard]] ArchivioEstrazioni estrazioniDa(std::string ottetti,
                                              const std::function<void(int)>& avanzamento = {});

/// The same from a file; a failure when it can't be read.
[[nodiscard]] ArchivioEstrazioni leggiEstrazioni(const std::filesystem::path& file,
                                                 const std::function<void(int)>& avanzamento = {});

/// The same for who picked the file: nothing, and the user told why under that title, when it can't be had.
[[nodiscard]] std::optional<ArchivioEstrazioni> leggiOSpiega(Servizi& servizi,
                                                             const std::filesystem::path& file,
                                                             const std::string& titolo);

/// What whoever replaces the archive should know.
inline constexpr const char* kNumeriDelleEstrazioni =
    "Le previsioni indicano le estrazioni con il loro numero: dove i numeri cambiano, varranno per altre "
    "estrazioni.";

/// Writes another archive in the place of the present one, of which a copy is kept.
void sostituisciArchivio(const Programma& programma, const ArchivioEstrazioni& nuovo);

/// Asks for a public text file of draws and builds the archive anew from it, after a question when draws are
/// there already. A message names a file that can't be taken and the line that is wrong, and the archive is
/// as it was. Failures of the archive's own file go on to the caller. True when the archive is a
/// new one.
bool importaEstrazioniDaFile(Programma& programma);

}  // namespace vaticlo
