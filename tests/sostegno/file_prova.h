#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/file_intero.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {

/// Files in a folder of the test's own, read and written as six bytes.
class FileProva : public testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path percorso(const std::string& nome) const { return p.radice / nome; }
  void leggi(const std::string& nome) { leggiFile(percorso(nome), griglia); }
  void scrivi(const std::string& nome) { scriviFile(percorso(nome), griglia); }

  ProgrammaProva p;
  std::array<std::uint8_t, 6> griglia{'1', '2', '3', '4', '5', '6'};
};

}  // namespace vaticlo::prova
