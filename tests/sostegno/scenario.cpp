#include "sostegno/scenario.h"

#include <sstream>

#include "archive/ruota.h"

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
  return ruota(estrazione, 0, {giorno, mese, anno % 100, anno / 100});
}

ArchivioProva& ArchivioProva::ruota(int estrazione, int ruota, const std::vector<int>& numeri) {
  for (int k = 1; const int numero : numeri)
    griglia(estrazione, ruota, k++) = static_cast<std::uint8_t>(numero);
  return *this;
}

ArchivioProva archivioDi(int ultima, const std::string& uscite) {
  ArchivioProva archivio(ultima);
  std::istringstream resto(uscite);
  for (std::string uscita; std::getline(resto, uscita, ',');) {
    std::istringstream parole(uscita);
    int estrazione = 0, ruota = 1;
    std::string sigla;
    parole >> estrazione >> sigla;
    while (SiglaRuota(ruota) != sigla) ++ruota;
    std::vector<int> numeri;
    for (int numero = 0; parole >> numero;) numeri.push_back(numero);
    archivio.ruota(estrazione, ruota, numeri);
  }
  return archivio;
}

FileMetodo metodoProva(const std::vector<SlotProva>& slot) {
  FileMetodo metodo;
  for (int s = 1; const auto& [estrazione, telefono, ruote, colpi, ambate, ambi, sup] : slot) {
    riempi(metodo, s, kCampoEstrazione, 1, {estrazione / 100, estrazione % 100});
    riempi(metodo, s, kCampoEstrazione, 3, telefono);
    riempi(metodo, s, kCampoRuote, 1, ruote);
    riempi(metodo, s, kCampoColpi, 1, {colpi});
    riempi(metodo, s, kCampoAmbate, 1, ambate);
    riempi(metodo, s, kCampoAmbi, 1, ambi);
    riempi(metodo, s++, kCampoSup, 1, sup);
  }
  return metodo;
}

void scriviMetodoProva(const ProgrammaProva& p, std::string_view nome, const std::vector<SlotProva>& slot) {
  ScriviMetodo(p.cartella(), nome, metodoProva(slot));
}

std::string rapportoDi(const std::string& testo) {
  std::string ottetti;
  std::istringstream resto(testo);
  for (std::string riga; std::getline(resto, riga, '|');) {
    for (std::size_t posto = 0; (posto = riga.find("°")) != std::string::npos;)
      riga.replace(posto, 2, "\xB0");
    ottetti += riga + "\r\n";
  }
  return ottetti;
}

}  // namespace vaticlo::prova
