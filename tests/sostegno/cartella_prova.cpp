#include "sostegno/cartella_prova.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <unistd.h>

namespace vaticlo::prova {

namespace fs = std::filesystem;

namespace {

fs::path nuovaCartella() {
  std::string modello = (fs::temp_directory_path() / "vaticlo-XXXXXX").string();
  if (::mkdtemp(modello.data()) == nullptr) throw std::runtime_error("mkdtemp");
  fs::create_directory(fs::path(modello) / "Metodi");
  return modello;
}

}  // namespace

std::vector<std::string> ServiziProva::detti() const {
  std::vector<std::string> testi;
  for (const auto& messaggio : messaggi) testi.push_back("[" + messaggio.titolo + "] " + messaggio.testo);
  return testi;
}

ProgrammaProva::ProgrammaProva() : radice_(nuovaCartella()), programma(radice_, servizi) {}

ProgrammaProva::~ProgrammaProva() {
  std::error_code ignorato;
  fs::remove_all(radice_, ignorato);
}

std::string ProgrammaProva::contenuto(std::string_view nome) const {
  std::ifstream file(radice_ / nome, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool ProgrammaProva::esiste(std::string_view nome) const { return fs::exists(radice_ / nome); }

void ProgrammaProva::scrivi(std::string_view nome, std::string_view ottetti) const {
  std::ofstream(radice_ / nome, std::ios::binary) << ottetti;
}

}  // namespace vaticlo::prova
