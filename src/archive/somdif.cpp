#include "archive/somdif.h"

#include "archive/ruota.h"

namespace vaticlo {

int Riduci90(int x) {
  while (x > kNumeri) x -= kNumeri;
  return x;
}

int Differenza(int a, int b) { return a > b ? a - b : b - a; }

std::int16_t DistanzaCiclo(int a, int b) {
  const int d = Differenza(a, b);
  return static_cast<std::int16_t>(d > kNumeri / 2 ? kNumeri - d : d);
}

ValoriSomDif CalcolaSomDif(const ArchivioEstrazioni& archivio, int estrazione, TipoSomDif tipo) {
  ValoriSomDif valori{};
  for (std::size_t c = 0; c < valori.size(); ++c)
    for (int ruota = 1; ruota <= kRuoteSomDif; ++ruota) {
      const int a = archivio(estrazione, ruota, kCoppiePosizioni[c].p);
      const int b = archivio(estrazione, ruota, kCoppiePosizioni[c].q);
      int& valore = valori[c][static_cast<std::size_t>(ruota - 1)];
      switch (tipo) {
        case TipoSomDif::Ciclometrica:
          valore = DistanzaCiclo(a, b);
          break;
        case TipoSomDif::Matematica:
          valore = Differenza(a, b);
          break;
        case TipoSomDif::Somma:
          valore = Riduci90(a + b);
          break;
      }
    }
  return valori;
}

}  // namespace vaticlo
