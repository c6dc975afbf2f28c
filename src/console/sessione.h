#pragma once

#include <optional>
#include <string>
#include <vector>

#include "console/esito.h"
#include "console/servizi_console.h"
#include "program/programma.h"

namespace vaticlo {

class RigaDiComando;
struct Comando;

/// One process of the console program: its folder, its public values, and the commands run in it one after
/// the other.
class Sessione {
 public:
  /// Runs the command line of the process, given as its words. Says on standard error what went wrong.
  Esito esegui(const std::vector<std::string>& parole);
  /// The same for a line read by `righe`; `davanti` says where it stands.
  Esito esegui(RigaDiComando& righe, const std::vector<std::string>& parole, const std::string& davanti);

  /// The program, in the folder given or else in that of the executable. `Metodi` is created when missing.
  [[nodiscard]] Programma& programma();

  ServiziConsole servizi;
  bool aTerminale = false;  ///< somebody reads the standard output on a screen

 private:
  void controllaCartella(const Comando& comando) const;

  std::optional<std::string> cartella_;
  std::optional<Programma> programma_;
};

}  // namespace vaticlo
