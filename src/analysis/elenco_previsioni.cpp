#include "analysis/elenco_previsioni.h"

#include <map>

#include "analysis/esito_in_parole.h"
#include "methods/decodifica.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

/// Why no scan takes a slot; empty when they do.
std::string nonVista(const FileMetodo& metodo, int slot) {
  try {
    return slot <= ContaPrevisioni(metodo) ? "" : "non giudicabile: nessuna scansione la vede";
  } catch (const RuntimeFailure&) {
    return "non giudicabile: il metodo ha dieci previsioni";
  }
}

}  // namespace

std::vector<VocePrevisione> elencoPrevisioni(const FileMetodo& griglia, const ArchivioEstrazioni& archivio) {
  const RegoleVincita regole(archivio);
  const int ultima = archivio.PrimoIndiceLibero() - 1;
  std::map<int, Decodificatore> decodificatori;  // the statistics start anew with each draw
  std::vector<VocePrevisione> voci;
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot) {
    const int estrazione = griglia.EstrazioneCalcolo(slot);
    if (estrazione == 0) continue;
    auto& voce = voci.emplace_back();
    voce.slot = slot;
    voce.estrazione = estrazione;
    if (estrazione <= ultima) voce.data = archivio.DataEstrazione(estrazione);
    try {
      voce.testi = leggiTesti(griglia, slot);
      Previsione previsione;
      decodificatori[estrazione].DecodificaPrevisione(griglia, slot, previsione);
      voce.esito = esitoInParole(previsione, regole, ultima);
    } catch (const RuntimeFailure&) {
      voce.esito = "non giudicabile: un elenco senza fine";
    }
    if (auto motivo = nonVista(griglia, slot); !motivo.empty()) voce.esito = std::move(motivo);
  }
  return voci;
}

}  // namespace vaticlo
