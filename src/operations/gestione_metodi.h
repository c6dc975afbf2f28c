#pragma once

#include <string>

#include "program/programma.h"

namespace vaticlo {

/// Creates, renames and deletes methods. A name must be usable as a file name on Windows and Linux, without
/// ".dat" inside, UTF-8, and new (upper and lower case and how accents are composed make no difference). Each
/// returns false when it refuses, after a message that says why; the methods are then as they were. Failures
/// of the disk go on to the caller.
class GestioneMetodi {
 public:
  explicit GestioneMetodi(Programma& programma) : programma_(programma) {}

  bool crea(const std::string& nome);
  bool rinomina(const std::string& nome, const std::string& nuovo);
  bool elimina(const std::string& nome);

 private:
  void richiediAmmesso(const std::string& nome, const std::string& tranne = {}) const;

  Programma& programma_;
};

}  // namespace vaticlo
