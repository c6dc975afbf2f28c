// The lines of a file of commands, run in a folder that holds the demonstration.
#include "console.h"

namespace {

// A command may name any file: only those of the folder are touched, nothing is fetched, and no run takes
// long.
bool innocuo(std::string_view testo) {
  for (const auto* parola : {"/", "..", "aggiorna", "aggiungi"})
    if (testo.find(parola) != std::string_view::npos) return false;
  int cifre = 0;
  for (const char c : testo)
    if ((cifre = c >= '0' && c <= '9' ? cifre + 1 : 0) == 5) return testo.find("prove") == testo.npos;
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo;
  using namespace vaticlo::fuzz;
  static ConsoleMuta console;
  static const std::vector<std::pair<std::string, std::string>> prima = [] {
    std::filesystem::current_path(console.p.radice);
    richiedi(console.esegui({"dimostrazione"}) == kFatto, "a demonstration");
    std::vector<std::pair<std::string, std::string>> file;
    for (const auto* nome : {"archivion71.dat", "Metodi/Metodo 1.dat", "Metodi/Metodo 2.dat"})
      file.emplace_back(nome, console.p.contenuto(nome));
    return file;
  }();
  const auto testo = Ingresso(dati, ottetti).tutto();
  if (!innocuo(testo)) return 0;
  console.svuota();
  for (const auto& [nome, contenuto] : prima) console.p.scrivi(nome, contenuto);
  console.p.scrivi("comandi.txt", testo);
  console.esegui({"esegui", "comandi.txt"});
  console.controlla();
  return 0;
}
