#include "controls/nove_pezzi.h"

namespace vaticlo {
namespace {

enum class Fascia { Inizio, Mezzo, Fine };

struct Posto {
  Fascia colonna;
  Fascia riga;
};

constexpr std::array<Posto, 9> kPosti{{{Fascia::Inizio, Fascia::Inizio},
                                       {Fascia::Fine, Fascia::Inizio},
                                       {Fascia::Fine, Fascia::Fine},
                                       {Fascia::Inizio, Fascia::Fine},
                                       {Fascia::Mezzo, Fascia::Inizio},
                                       {Fascia::Fine, Fascia::Mezzo},
                                       {Fascia::Inizio, Fascia::Mezzo},
                                       {Fascia::Mezzo, Fascia::Fine},
                                       {Fascia::Mezzo, Fascia::Mezzo}}};

struct Tratto {
  int inizio;
  int lunghezza;
};

Tratto trattoDi(Fascia fascia, int totale, int angolo) {
  switch (fascia) {
    case Fascia::Inizio:
      return {0, angolo};
    case Fascia::Mezzo:
      return {angolo, totale - 2 * angolo};
    case Fascia::Fine:
      break;
  }
  return {totale - angolo, angolo};
}

Rettangolo ritaglia(Posto posto, Misura misura, int angolo) {
  const Tratto colonna = trattoDi(posto.colonna, misura.larghezza, angolo);
  const Tratto riga = trattoDi(posto.riga, misura.altezza, angolo);
  return {colonna.inizio, riga.inizio, colonna.lunghezza, riga.lunghezza};
}

}  // namespace

std::array<Pezzo, 9> novePezzi(Misura destinazione, Misura origine, int angolo) {
  std::array<Pezzo, 9> pezzi;
  for (std::size_t i = 0; i < pezzi.size(); ++i) {
    pezzi[i] = {ritaglia(kPosti[i], origine, angolo), ritaglia(kPosti[i], destinazione, angolo)};
  }
  return pezzi;
}

}  // namespace vaticlo
