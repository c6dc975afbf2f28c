#include "analysis/situazione.h"

#include <algorithm>
#include <filesystem>

#include "analysis/metodi_giudicati.h"
#include "methods/catalogo.h"

namespace vaticlo {

namespace {

/// The predictions of a method that the page names, with the texts of its file as it is now.
class Voci {
 public:
  Voci(const CartellaProgramma& cartella, const ArchivioEstrazioni& archivio, std::string metodo)
      : cartella_(cartella), archivio_(archivio), metodo_(std::move(metodo)) {}

  void aggiungi(std::vector<Situazione::Prevista>& dove, int slot, int colpiRimasti) {
    if (!voci_) voci_ = elencoPrevisioni(LeggiMetodo(cartella_, metodo_, SeManca::Vuoto), archivio_);
    const auto voce =
        std::find_if(voci_->begin(), voci_->end(), [&](const auto& v) { return v.slot == slot; });
    if (voce != voci_->end()) dove.push_back({metodo_, *voce, colpiRimasti});
  }

 private:
  const CartellaProgramma& cartella_;
  const ArchivioEstrazioni& archivio_;
  std::string metodo_;
  std::optional<std::vector<VocePrevisione>> voci_;
};

void leggiMetodi(Situazione& situazione, const CartellaProgramma& cartella,
                 const ArchivioEstrazioni& archivio) {
  const int ultima = situazione.estrazioni;
  auto elenco = CaricaElencoMetodi(cartella, {}, NomeSenzaDat::VoceVuota);
  std::erase(elenco, "");
  for (const auto& metodo : giudicaMetodi(cartella, archivio, elenco, {1, ultima})) {
    if (const auto stato = statoDi(metodo.lettura); stato != StatoMetodo::Regolare)
      situazione.daGuardare.push_back({metodo.nome, stato});
    Voci voci(cartella, archivio, metodo.nome);
    for (const auto& una : metodo.previsioni) {
      if (!una.esito) continue;
      if (una.esito->stato == StatoPrevisione::InGioco)
        voci.aggiungi(situazione.inGioco, una.slot, std::min(una.colpi, una.estrazione + una.colpi - ultima));
      else if (una.esito->stato == StatoPrevisione::Vincente && una.estrazione + una.esito->colpo == ultima)
        voci.aggiungi(situazione.vinteAllUltima, una.slot, 0);
    }
  }
  std::stable_sort(situazione.inGioco.begin(), situazione.inGioco.end(),
                   [](const auto& a, const auto& b) { return a.colpiRimasti < b.colpiRimasti; });
}

}  // namespace

Situazione situazioneDi(const CartellaProgramma& cartella) {
  Situazione situazione;
  std::error_code codice;
  if (!std::filesystem::exists(cartella.file(kFileArchivio), codice)) return situazione;
  const auto archivio = ApriArchivio(cartella);
  situazione.estrazioni = archivio.PrimoIndiceLibero() - 1;
  if (situazione.estrazioni > 0)
    situazione.ultima = dataDaTesto(archivio.DataEstrazione(situazione.estrazioni));
  leggiMetodi(situazione, cartella, archivio);
  return situazione;
}

}  // namespace vaticlo
