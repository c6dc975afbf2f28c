#include "archive/archivio.h"

#include <algorithm>

#include "platform/cartella.h"
#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

void ArchivioEstrazioni::fuoriDallaGriglia() { throw RuntimeFailure(Errore::Indice); }

int ArchivioEstrazioni::PrimoIndiceLibero() const {
  // The first MaxEstrazioni bytes are the days of all draws, one after the other.
  const auto giorni = ottetti().first(MaxEstrazioni);
  const auto libero = std::find(giorni.begin(), giorni.end(), std::uint8_t{0});
  if (libero == giorni.end())
    throw RuntimeFailure(Errore::Indice)
        .spiega(
            {.fatto =
                 "L'archivio è pieno: contiene 15.000 estrazioni, una più di quante se ne possono mostrare.",
             .rimedio =
                 "Rimettete al suo posto una copia di archivion71.dat, oppure costruite l'archivio con "
                 "Archivio > Importa Estrazioni da File.",
             .capitolo = "Il resto"});
  return static_cast<int>(libero - giorni.begin()) + 1;
}

std::string ArchivioEstrazioni::DataEstrazione(int i) const {
  const ArchivioEstrazioni& a = *this;
  const int annoNelSecolo = a(i, 0, 3);
  return std::to_string(a(i, 0, 1)) + "/" + std::to_string(a(i, 0, 2)) + "/" + std::to_string(a(i, 0, 4)) +
         (annoNelSecolo < 10 ? "0" : "") + std::to_string(annoNelSecolo);
}

void ArchivioEstrazioni::scriviData(int i, const Data& data, int secolo) {
  ArchivioEstrazioni& a = *this;
  a(i, 0, 1) = static_cast<std::uint8_t>(giorno(data));
  a(i, 0, 2) = static_cast<std::uint8_t>(mese(data));
  a(i, 0, 3) = static_cast<std::uint8_t>(annoDueCifre(data));
  a(i, 0, 4) = static_cast<std::uint8_t>(secolo);
  a(i, 0, 5) = 0;
}

int cercaData(const ArchivioEstrazioni& archivio, const DataCercata& data, int ultima) {
  int i = 1;
  const auto avanza = [&](auto fermati) {
    while (i <= ArchivioEstrazioni::MaxEstrazioni && !fermati(i)) ++i;
  };
  // Meant: each walk goes on where the last one stopped and never back.
  avanza([&](int d) { return archivio(d, 0, 4) == data.secolo; });
  avanza([&](int d) { return archivio(d, 0, 3) == data.anno; });
  avanza([&](int d) { return archivio(d, 0, 2) == data.mese; });
  // Meant: days alone are compared here, whatever month the walk gets into (guide: "La ricerca di
  // un'estrazione").
  avanza([&](int d) { return archivio(d, 0, 1) >= data.giorno || d >= ultima; });
  return i;
}

ArchivioEstrazioni ApriArchivio(const CartellaProgramma& cartella) {
  ArchivioEstrazioni archivio;
  leggiFile(cartella.file(kFileArchivio), archivio.ottetti());
  return archivio;
}

void ScriviArchivio(const CartellaProgramma& cartella, const ArchivioEstrazioni& archivio) {
  scriviFile(cartella.file(kFileArchivio), archivio.ottetti());
}

}  // namespace vaticlo
