#include "console/comandi/avvisi.h"

#include <iostream>

#include "methods/cartella_metodi.h"
#include "operations/metodi_guasti.h"
#include "platform/testo.h"

namespace vaticlo {

void avvisaDeiMetodi(const Programma& programma, const std::optional<std::string>& metodo) {
  if (metodo && !esisteMetodo(programma.cartella, *metodo))
    std::cerr << "Non c'è nessun metodo di nome \"" << citazione(*metodo) << "\".\n";
  for (const auto& guasto : metodiGuasti(programma.cartella, {!metodo, metodo.value_or("")}))
    std::cerr << "Il metodo \"" << guasto.nome << "\" non si può giudicare: " << guasto.motivo << ".\n";
}

Esito esitoDeiRapporti(const Programma& programma) {
  return programma.globals.RapportiInteri ? kFatto : kErrore;
}

}  // namespace vaticlo
