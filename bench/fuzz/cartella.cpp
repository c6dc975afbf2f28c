// Arbitrary archive and method bytes in a program folder: shown, judged by the check, the statistics and both
// scans, changed by the store and by the editor. Who reads changes nothing, a report is made of whole lines.
#include "archive/clsgestione.h"
#include "check/clsmetodo.h"
#include "console.h"
#include "methods/scansione.h"
#include "statistics/clsstatistica.h"

namespace vaticlo::fuzz {
namespace {

constexpr int kEstrazioni = 8;

void controllaRapporti(const prova::ProgrammaProva& p) {
  for (const auto nome : {kFileEsiti, kFilePrevGioco, kFileVincenti, kFileStat, kFileVincite}) {
    const auto testo = p.contenuto(nome);
    richiedi(testo.empty() || testo.ends_with("\r\n"), "a report of whole lines");
    for (std::size_t n = testo.find('\n'); n != std::string::npos; n = testo.find('\n', n + 1))
      richiedi(n > 0 && testo[n - 1] == '\r', "lines ended by carriage return and line feed");
  }
}

std::vector<std::string> con55(std::vector<std::string> parole, int primo) {
  for (int n = 0; n < kCampiEstrazione; ++n) parole.push_back(std::to_string((primo + n) % 256));
  return parole;
}

}  // namespace
}  // namespace vaticlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo;
  using namespace vaticlo::fuzz;
  static ConsoleMuta console;
  Ingresso ingresso(dati, ottetti);
  const int n = ingresso.ottetto() % (kEstrazioni + 2);
  ArchivioEstrazioni archivio;
  FileMetodo metodo;
  riempi(archivio, kEstrazioni, ingresso);
  riempi(metodo, ingresso);
  console.svuota();
  console.p.scrivi(kFileArchivio, comeTesto(archivio.ottetti()));
  console.p.scrivi("Metodi/Metodo 1.dat", comeTesto(metodo.ottetti()));

  const auto numero = std::to_string(n);
  for (const std::vector<std::string>& comando :
       std::vector<std::vector<std::string>>{{"estrazione", numero},
                                             {"somdif", numero},
                                             {"trova", "14/03/2026"},
                                             {"verifica", numero},
                                             {"statistica", "1", numero},
                                             {"in-gioco"},
                                             {"vincenti", "--ultime", "5"},
                                             {"quadro"},
                                             {"previsione", "elenco", "Metodo 1"},
                                             {"previsione", "mostra", "Metodo 1", "1"}})
    console.esegui(comando);
  controllaRapporti(console.p);
  richiedi(console.p.contenuto(kFileArchivio) == comeTesto(archivio.ottetti()), "an archive that is read");
  richiedi(console.p.contenuto("Metodi/Metodo 1.dat") == comeTesto(metodo.ottetti()),
           "a method that is read");

  for (const auto& comando : std::vector<std::vector<std::string>>{
           con55({"modifica", numero}, n),
           con55({"inserisci", "14/03/2026"}, n),
           {"cancella", numero},
           {"previsione", "inserisci", "Metodo 1", "--estrazione", "1", "--ruote", "Ba", "--ambate", "9"},
           {"previsione", "modifica", "Metodo 1", "1", "--ruote", "To-Tutte", "--ambi", "9-90"},
           {"previsione", "togli", "Metodo 1", "1"}})
    console.esegui(comando);
  console.controlla();
  return 0;
}
