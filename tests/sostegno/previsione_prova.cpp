#include "sostegno/previsione_prova.h"

namespace vaticlo::prova {

namespace {

void riempi(FileMetodo& metodo, int slot, int campo, int pos, const std::vector<int>& celle) {
  for (const int cella : celle) metodo(slot, campo, pos++) = static_cast<std::uint8_t>(cella);
}

}  // namespace

ArchivioProva::ArchivioProva(int ultima) {
  for (int i = 1; i <= ultima; ++i) data(i, 12, 3, 2005);
}

ArchivioProva& ArchivioProva::data(int estrazione, int giorno, int mese, int anno) {
  griglia(estrazione, 0, 1) = static_cast<std::uint8_t>(giorno);
  griglia(estrazione, 0, 2) = static_cast<std::uint8_t>(mese);
  griglia(estrazione, 0, 3) = static_cast<std::uint8_t>(anno % 100);
  griglia(estrazione, 0, 4) = static_cast<std::uint8_t>(anno / 100);
  return *this;
}

ArchivioProva& ArchivioProva::ruota(int estrazione, int ruota, const std::vector<int>& numeri) {
  for (std::size_t k = 0; k < numeri.size(); ++k)
    griglia(estrazione, ruota, static_cast<int>(k) + 1) = static_cast<std::uint8_t>(numeri[k]);
  return *this;
}

void ArchivioProva::scrivi(const ProgrammaProva& programma) const {
  ScriviArchivio(programma.cartella(), griglia);
}

FileMetodo metodoProva(const std::vector<SlotProva>& slot) {
  FileMetodo metodo;
  for (std::size_t n = 0; n < slot.size(); ++n) {
    const int s = static_cast<int>(n) + 1;
    riempi(metodo, s, kCampoEstrazione, 1, {slot[n].estrazione / 100, slot[n].estrazione % 100});
    riempi(metodo, s, kCampoEstrazione, 3, slot[n].telefono);
    riempi(metodo, s, kCampoRuote, 1, slot[n].ruote);
    riempi(metodo, s, kCampoColpi, 1, {slot[n].colpi});
    riempi(metodo, s, kCampoAmbate, 1, slot[n].ambate);
    riempi(metodo, s, kCampoAmbi, 1, slot[n].ambi);
    riempi(metodo, s, kCampoSup, 1, slot[n].sup);
  }
  return metodo;
}

void scriviMetodoProva(const ProgrammaProva& programma, std::string_view nome,
                       const std::vector<SlotProva>& slot) {
  ScriviMetodo(programma.cartella(), nome, metodoProva(slot));
}

}  // namespace vaticlo::prova
