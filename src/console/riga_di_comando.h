#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "console/comandi/comandi.h"

namespace vaticlo {

/// What a command line asks for: a command with its arguments, or a text (help, version) that answers it.
struct Ordine {
  const Comando* comando = nullptr;  ///< none: the text
  Argomenti argomenti;
  std::string testo;
  std::optional<std::string> cartella;  ///< the program folder, when the line gives one
};

/// Reads command lines by the table of commands. One object reads any number of them.
class RigaDiComando {
 public:
  enum class Luogo { Terminale, File };  ///< a line of a file has no folder of its own and no further file

  explicit RigaDiComando(Luogo luogo);
  RigaDiComando(const RigaDiComando&) = delete;
  RigaDiComando& operator=(const RigaDiComando&) = delete;
  ~RigaDiComando();

  /// UsoErrato for a line that is not right. The command lives as long as this object.
  [[nodiscard]] Ordine leggi(const std::vector<std::string>& parole);

 private:
  struct Interno;
  std::unique_ptr<Interno> interno_;
};

}  // namespace vaticlo
