#pragma once

#include <string>
#include <vector>

#include "archive/archivio.h"
#include "methods/metodo.h"
#include "methods/testi_campi.h"

namespace vaticlo {

/// A prediction of a method as a person reads it.
struct VocePrevisione {
  int slot = 0;
  int estrazione = 0;
  std::string data;  ///< of the calculation draw; empty when the archive has no such draw
  TestiPrevisione testi;
  std::string esito;  ///< as esitoInParole(), or why nothing judges it
};

/// All predictions of a method by slot, those that no scan sees included. A slot whose lists have no end has
/// no texts.
[[nodiscard]] std::vector<VocePrevisione> elencoPrevisioni(const FileMetodo& griglia,
                                                           const ArchivioEstrazioni& archivio);

}  // namespace vaticlo
