#include "console/sessione.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>

#include <CLI/CLI.hpp>

#include "console/messaggi_uso.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr double kMassimoIntero = 1e9;

fs::path cartellaEseguibile() { return fs::read_symlink("/proc/self/exe").parent_path(); }

}  // namespace

Programma& Sessione::programma() {
  if (!programma_) {
    programma_.emplace(cartella_.empty() ? cartellaEseguibile() : fs::path(cartella_), servizi);
    // A folder that can't be made shows itself in the first file that is opened in it.
    std::error_code ignorato;
    fs::create_directories(programma_->cartella.metodi(), ignorato);
  }
  return *programma_;
}

int Sessione::esegui(std::vector<std::string> parole) {
  return esegui(std::move(parole), Luogo::RigaDiComando, "");
}

int Sessione::eseguiRiga(std::vector<std::string> parole, int riga) {
  return esegui(std::move(parole), Luogo::File, "riga " + std::to_string(riga) + ": ");
}

int Sessione::esegui(std::vector<std::string> parole, Luogo luogo, const std::string& davanti) {
  CLI::App app("Archivio del Lotto, previsioni, verifiche e statistiche.", "vaticlo-cli");
  parlaItaliano(app);
  app.require_subcommand(1);
  if (luogo == Luogo::RigaDiComando)
    app.add_option("--cartella", cartella_, "Cartella del programma (altrimenti quella dell'eseguibile)")
        ->type_name("DIR");
  aggiungiImporta(app, *this);
  aggiungiComandiArchivio(app, *this);
  aggiungiSomdif(app, *this);
  aggiungiComandiMetodi(app, *this);
  aggiungiComandiPrevisioni(app, *this);
  aggiungiVerifica(app, *this);
  aggiungiStatistica(app, *this);
  aggiungiComandiRapporti(app, *this);
  aggiungiDimostrazione(app, *this);
  if (luogo == Luogo::RigaDiComando) aggiungiEsegui(app, *this);
  parlaItalianoAiuto(app);

  esito = kFatto;
  servizi.dimentica();
  try {
    std::reverse(parole.begin(), parole.end());
    app.parse(std::move(parole));
    if (servizi.rifiutato() && esito == kFatto) esito = kRifiutato;
  } catch (const CLI::CallForHelp&) {
    std::cout << app.help();
  } catch (const CLI::ParseError& errore) {
    std::cerr << davanti << spiegaErrore(app, errore) << '\n';
    esito = kUsoErrato;
  } catch (const UsoErrato& errore) {
    std::cerr << davanti << errore.what() << '\n';
    esito = kUsoErrato;
  } catch (const RuntimeFailure& failure) {
    std::cout.flush();
    std::cerr << "Errore di run-time " << failure.numero() << ": " << failure.what() << '\n';
    esito = kErrore;
  }
  return esito;
}

std::string leggiTesto(const std::string& file) {
  try {
    return contenutoFile(file);
  } catch (const RuntimeFailure& failure) {
    throw UsoErrato("non si può leggere \"" + file + "\": " + descrizione(failure.errore()));
  }
}

int numeroIntero(const std::string& testo, const std::string& nome) {
  const auto numero = numeroDaTesto(testo);
  if (!numero || std::abs(*numero) > kMassimoIntero || *numero != std::trunc(*numero))
    throw UsoErrato(nome + " deve essere un numero intero, non \"" + testo + "\"");
  return static_cast<int>(*numero);
}

}  // namespace vaticlo
