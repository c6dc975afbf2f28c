#include "archive/archivio.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

void ArchivioEstrazioni::fuoriDallaGriglia() { throw RuntimeFailure(Errore::Indice); }

int ArchivioEstrazioni::PrimoIndiceLibero() const {
  // The first MaxEstrazioni bytes are the days of all draws, one after the other.
  const auto giorni = ottetti().first(MaxEstrazioni);
  const auto libero = std::find(giorni.begin(), giorni.end(), std::uint8_t{0});
  if (libero == giorni.end()) fuoriDallaGriglia();
  return static_cast<int>(libero - giorni.begin()) + 1;
}

std::string ArchivioEstrazioni::DataEstrazione(int i) const {
  const ArchivioEstrazioni& a = *this;
  const int annoNelSecolo = a(i, 0, 3);
  return std::to_string(a(i, 0, 1)) + "/" + std::to_string(a(i, 0, 2)) + "/" + std::to_string(a(i, 0, 4)) +
         (annoNelSecolo < 10 ? "0" : "") + std::to_string(annoNelSecolo);
}

ArchivioEstrazioni ApriArchivio(const CartellaProgramma& cartella) {
  ArchivioEstrazioni archivio;
  leggiFile(cartella.archivio(), archivio.ottetti());
  return archivio;
}

void ScriviArchivio(const CartellaProgramma& cartella, const ArchivioEstrazioni& archivio) {
  scriviFile(cartella.archivio(), archivio.ottetti());
}

}  // namespace vaticlo
