// Decodes and judges arbitrary archive and method bytes in every way the program does. Whatever they hold,
// the result is a report or one of the program's own failures.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "archive/clsgestione.h"
#include "methods/decodifica.h"
#include "methods/giudizio.h"
#include "methods/testi_campi.h"
#include "methods/testi_previsione.h"
#include "platform/failure.h"

namespace vaticlo {
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

// The first bytes are the draws, draw by draw; the rest is the method, slot by slot, so that near bytes
// belong together.
std::span<const std::uint8_t> riempi(ArchivioEstrazioni& archivio, std::span<const std::uint8_t> dati) {
  for (int i = 1; i <= kEstrazioni; ++i)
    for (int j = 0; j < ArchivioEstrazioni::Righe; ++j)
      for (int k = 1; k <= ArchivioEstrazioni::Colonne && !dati.empty(); ++k, dati = dati.subspan(1))
        archivio(i, j, k) = dati.front();
  return dati;
}

void riempi(FileMetodo& metodo, std::span<const std::uint8_t> dati) {
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot)
    for (int campo = 0; campo < FileMetodo::Campi; ++campo) {
      if (dati.empty()) return;
      const auto lunghezza = std::min<std::size_t>({dati.front(), dati.size() - 1, 180});
      for (std::size_t p = 0; p < lunghezza; ++p) metodo(slot, campo, static_cast<int>(p) + 1) = dati[p + 1];
      dati = dati.subspan(lunghezza + 1);
    }
}

template <class Prova>
void prova(Prova p) {
  try {
    p();
  } catch (const RuntimeFailure&) {
    // A failure of its own is an answer.
  }
}

}  // namespace
}  // namespace vaticlo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo;
  static ArchivioEstrazioni archivio;
  const auto resto = riempi(archivio, {dati, ottetti});
  FileMetodo metodo;
  riempi(metodo, resto);

  const RegoleVincita regole(archivio);
  Decodificatore decodificatore;
  Previsione previsione;
  Righe righe;
  prova([&] { (void)ContaPrevisioni(metodo); });
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot) {
    prova([&] { (void)leggiTesti(metodo, slot); });
    prova([&] {
      decodificatore.DecodificaPrevisione(metodo, slot, previsione);
      (void)testoRuote(previsione);
      for (const auto flag : {FlagTutte::PrimaRuota, FlagTutte::OgniRuota})
        for (int d = 0; d <= kEstrazioni; ++d)
          prova([&] { giudicaColpo(previsione, regole, d, flag, righe); });
    });
    // What the editor shows of a slot it must be able to take back, or refuse in its own way.
    prova([&] {
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
