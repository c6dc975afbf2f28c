#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "archive/archivio.h"

namespace vaticlo {

/// The public text file of draws could not be taken: which line, if it is one, and what is wrong (Italian).
class ErroreImportazione : public std::runtime_error {
 public:
  ErroreImportazione(int riga, const std::string& motivo)
      : std::runtime_error("riga " + std::to_string(riga) + ": " + motivo) {}
  explicit ErroreImportazione(const std::string& motivo) : std::runtime_error(motivo) {}
};

/// Reads the public text form: a line for each wheel of each draw, oldest or newest draw first,
/// `yyyy/mm/dd<TAB>BA<TAB>58<TAB>22<TAB>47<TAB>49<TAB>69`, lines ended by LF or CR LF, with blanks and empty
/// lines at the ends of lines and text at most. All lines of one date are one draw; a wheel without a line
/// keeps 0 in its cells. Throws ErroreImportazione at the first line
/// that is not right. `avanzamento` is called for each percent of the text that is done.
[[nodiscard]] ArchivioEstrazioni importaEstrazioni(std::string_view testo,
                                                   const std::function<void(int)>& avanzamento = {});

/// How many draws an imported archive has, and from which date to which (Italian).
[[nodiscard]] std::string riassunto(const ArchivioEstrazioni& importato);

}  // namespace vaticlo
