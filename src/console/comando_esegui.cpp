#include <iostream>
#include <memory>
#include <sstream>

#include <CLI/CLI.hpp>

#include "console/parole.h"
#include "console/sessione.h"

namespace vaticlo {

namespace {

void eseguiFile(Sessione& sessione, std::istream& comandi) {
  int esito = kFatto;
  std::string testo;
  for (int riga = 1; std::getline(comandi, testo); ++riga) {
    auto parole = paroleDellaRiga(testo);
    if (!parole) throw UsoErrato("riga " + std::to_string(riga) + ": virgolette non chiuse");
    if (parole->empty()) continue;
    esito = sessione.eseguiRiga(std::move(*parole), riga);
    if (esito != kFatto && esito != kRifiutato) break;
  }
  sessione.esito = esito;
}

}  // namespace

void aggiungiEsegui(CLI::App& app, Sessione& sessione) {
  auto* comando = app.add_subcommand("esegui", "Esegue i comandi di un file di testo, uno per riga");
  auto file = std::make_shared<std::string>();
  comando->add_option("FILE", *file, "File dei comandi (-: standard input)")->required();
  comando->callback([&sessione, file] {
    if (*file == "-") return eseguiFile(sessione, std::cin);
    std::istringstream comandi(leggiTesto(*file));
    eseguiFile(sessione, comandi);
  });
}

}  // namespace vaticlo
