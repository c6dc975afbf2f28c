#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "archive/importazione.h"
#include "console/sessione.h"

namespace vaticlo {

namespace {

ArchivioEstrazioni leggiEstrazioni(const std::string& file) {
  try {
    return importaEstrazioni(leggiTesto(file));
  } catch (const ErroreImportazione& errore) {
    throw UsoErrato(file + ", " + errore.what() + "\nL'archivio è rimasto com'era.");
  }
}

}  // namespace

void aggiungiImporta(CLI::App& app, Sessione& sessione) {
  auto* comando =
      app.add_subcommand("importa", "Crea l'archivio da un file di testo pubblico delle estrazioni");
  auto file = std::make_shared<std::string>();
  comando->add_option("FILE", *file, "Righe aaaa/mm/gg, ruota e cinque numeri, separati da tabulazioni")
      ->required();
  comando->callback([&sessione, file] {
    const auto archivio = leggiEstrazioni(*file);
    ScriviArchivio(sessione.programma().cartella, archivio);
    std::cout << "Importate " << riassunto(archivio) << '\n';
  });
}

}  // namespace vaticlo
