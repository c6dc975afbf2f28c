#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "console/servizi_console.h"
#include "program/programma.h"

namespace CLI {
class App;
}

namespace vaticlo {

/// How a command ended: the exit status of the process.
enum Esito { kFatto = 0, kErrore = 1, kUsoErrato = 2, kRifiutato = 3, kInterrotto = 130 };

/// A command line or an input file that can't be used; the text says which and how to do it right.
class UsoErrato : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One process of the console program: its folder, its public values, and the commands run in it one after
/// the other.
class Sessione {
 public:
  /// Runs one command line given as its words, says on standard error what went wrong, and gives the exit
  /// status.
  int esegui(std::vector<std::string> parole);
  /// The same for a line of a file of commands: no folder of its own, no further file.
  int eseguiRiga(std::vector<std::string> parole, int riga);

  /// The program, in the folder given or else in that of the executable. `Metodi` is created when missing.
  [[nodiscard]] Programma& programma();

  ServiziConsole servizi;
  int esito = kFatto;  ///< of the command under way

 private:
  enum class Luogo { RigaDiComando, File };
  int esegui(std::vector<std::string> parole, Luogo luogo, const std::string& davanti);

  std::string cartella_;
  std::optional<Programma> programma_;
};

/// Each adds its commands to the parser; a command sets `esito` or throws.
void aggiungiComandiArchivio(CLI::App& app, Sessione& sessione);
void aggiungiComandiMetodi(CLI::App& app, Sessione& sessione);
void aggiungiComandiPrevisioni(CLI::App& app, Sessione& sessione);
void aggiungiComandiRapporti(CLI::App& app, Sessione& sessione);
void aggiungiDimostrazione(CLI::App& app, Sessione& sessione);
void aggiungiEsegui(CLI::App& app, Sessione& sessione);
void aggiungiImporta(CLI::App& app, Sessione& sessione);
void aggiungiSomdif(CLI::App& app, Sessione& sessione);
void aggiungiStatistica(CLI::App& app, Sessione& sessione);
void aggiungiVerifica(CLI::App& app, Sessione& sessione);

/// The text of an input file. UsoErrato when it can't be read.
[[nodiscard]] std::string leggiTesto(const std::string& file);

/// A whole number given as an argument. UsoErrato when it is none.
[[nodiscard]] int numeroIntero(const std::string& testo, const std::string& nome);

}  // namespace vaticlo
