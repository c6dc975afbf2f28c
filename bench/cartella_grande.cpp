#include "cartella_grande.h"

#include <array>
#include <cstdio>
#include <random>
#include <string>

#include "archive/archivio.h"
#include "archive/ruota.h"
#include "methods/cartella_metodi.h"
#include "methods/testi_campi.h"

namespace vaticlo {

namespace {

class Caso {
 public:
  [[nodiscard]] int da(int minimo, int massimo) {
    return minimo + static_cast<int>(generatore_() % static_cast<unsigned>(massimo - minimo + 1));
  }
  [[nodiscard]] std::string numeri(int quanti, char separatore) {
    std::string testo;
    for (int n = 0; n < quanti; ++n)
      testo += (n > 0 ? std::string(1, separatore) : "") + std::to_string(da(1, 90));
    return testo;
  }

 private:
  std::mt19937 generatore_{1939};
};

ArchivioEstrazioni archivioGrande(Caso& caso, int estrazioni) {
  ArchivioEstrazioni archivio;
  for (int i = 1; i <= estrazioni; ++i) {
    const std::array<int, 5> data = {1 + i % 28, 1 + i / 28 % 12, i / 336 % 50, 20, 0};
    for (int k = 1; k <= 5; ++k)
      archivio(i, 0, k) = static_cast<std::uint8_t>(data.at(static_cast<std::size_t>(k - 1)));
    for (int j = 1; j <= kRuote; ++j)
      for (int k = 1; k <= 5; ++k) archivio(i, j, k) = static_cast<std::uint8_t>(caso.da(1, 90));
  }
  return archivio;
}

TestiPrevisione previsioneCasuale(Caso& caso) {
  TestiPrevisione testi{.numero = "899.12.34",
                        .ruote = "",
                        .colpi = std::to_string(caso.da(5, 15)),
                        .ambate = "",
                        .ambi = "",
                        .sup = ""};
  const int ruote = caso.da(1, 3);
  for (int n = 0; n < ruote; ++n)
    testi.ruote += std::string(n > 0 ? "-" : "") + std::string(SiglaRuota(caso.da(1, kRuote)));
  if (caso.da(1, 3) == 1) testi.ruote += "-Tutte";
  testi.ambate = caso.numeri(caso.da(0, 2), ';');
  testi.ambi = caso.numeri(2, '-') + ";" + caso.numeri(2, '-');
  if (caso.da(0, 1) == 1) testi.sup = caso.numeri(caso.da(3, 6), '-');
  return testi;
}

}  // namespace

void creaCartellaGrande(const CartellaProgramma& cartella, int estrazioni, int metodi) {
  Caso caso;
  std::filesystem::create_directories(cartellaMetodi(cartella));
  const auto archivio = archivioGrande(caso, estrazioni);
  ScriviArchivio(cartella, archivio);
  for (int m = 1; m <= metodi; ++m) {
    FileMetodo metodo;
    for (int slot = 1; slot < FileMetodo::Slot; ++slot) {
      int calcolo = caso.da(101, estrazioni - 1);
      if (calcolo % 100 == 0) ++calcolo;  // a multiple of 100 would hide the slots behind it
      scriviEstrazione(metodo, slot, calcolo, dataDaTesto(archivio.DataEstrazione(calcolo)).value());
      scriviTesti(metodo, slot, previsioneCasuale(caso));
    }
    std::array<char, 32> nome{};
    std::snprintf(nome.data(), nome.size(), "Metodo %04d", m);
    ScriviMetodo(cartella, nome.data(), metodo);
  }
}

}  // namespace vaticlo
