// Decodes and judges arbitrary archive and method bytes in every way the program does. Whatever they hold,
// the result is a report or one of the program's own failures.
#include "methods/giudizio.h"

#include "ingresso.h"
#include "methods/decodifica.h"
#include "methods/testi_campi.h"
#include "methods/testi_previsione.h"

namespace vaticlo::fuzz {
namespace {

constexpr int kEstrazioni = 8;

struct Righe : EsitoColpo {
  std::size_t lunghezza = 0;
  void ambata(int numero, int ruota) override { lunghezza += rigaAmbata(numero, ruota, 1).size(); }
  void ambo(int a, int b, int ruota) override { lunghezza += rigaAmbo(a, b, ruota, 1).size(); }
  void amboTutte(int a, int b, int ruota) override { lunghezza += rigaAmboTutte(a, b, ruota, 1).size(); }
  void sorte(const std::vector<int>& usciti, int ruota) override {
    lunghezza += rigaNumeri(inizioSorte(usciti.size()), usciti, ruota, 1).size();
  }
};

}  // namespace
}  // namespace vaticlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo;
  using namespace vaticlo::fuzz;
  static ArchivioEstrazioni archivio;
  Ingresso ingresso(dati, ottetti);
  riempi(archivio, kEstrazioni, ingresso);
  FileMetodo metodo;
  riempi(metodo, ingresso);

  const RegoleVincita regole(archivio);
  Decodificatore decodificatore;
  Previsione previsione;
  Righe righe;
  riesce([&] { (void)ContaPrevisioni(metodo); });
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot) {
    riesce([&] {
      decodificatore.DecodificaPrevisione(metodo, slot, previsione);
      (void)testoRuote(previsione);
      for (const auto flag : {FlagTutte::PrimaRuota, FlagTutte::OgniRuota})
        for (int d = 0; d <= kEstrazioni; ++d)
          riesce([&] { giudicaColpo(previsione, regole, d, flag, righe); });
    });
    // What the editor shows of a slot it must be able to take back, or refuse in its own way.
    riesce([&] {
      auto copia = metodo;
      try {
        scriviTesti(copia, slot, leggiTesti(metodo, slot));
      } catch (const RifiutoPrevisione&) {
        // Told to the user.
      }
    });
  }
  return 0;
}
