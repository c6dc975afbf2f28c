#pragma once

#include <optional>

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "forms/prospetto.h"
#include "operations/aggiungi_estrazioni.h"
#include "program/programma.h"

namespace vaticlo {

/// Adds new draws to the archive from the Internet or from a file: first it shows what would come and where
/// text and archive differ, then it writes.
class frmAggiungi : public Finestra {
 public:
  frmAggiungi(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override { ricomincia(); }
  void estrazioniAggiunte() override {}
  void btnInternet_Click();
  void btnFile_Click();
  void btnAggiungi_Click();
  void btnEsci_Click();

  Riquadro Frame1{"Da dove"};
  Pulsante btnInternet{"Da &Internet", "Scarica l'archivio pubblico di tutte le estrazioni"};
  Pulsante btnFile{"Da un &file...", "Legge un file di testo, anche zip o gzip"};
  Etichetta lblArchivio, lblAnteprima, lblDifferenze;
  AreaTesto txtAvvertenze;
  Prospetto differenze;
  Pulsante btnAggiungi{kAggiungi, "Aggiunge le estrazioni nuove in fondo all'archivio"};
  Pulsante btnEsci{"&Esci", "Chiudi la finestra"};

 private:
  static constexpr const char* kAggiungi = "&Aggiungi";

  void confronta(ArchivioEstrazioni testo);
  void mostra();
  void ricomincia();

  Programma& programma_;
  std::optional<AggiuntaEstrazioni> aggiunta_;
};

}  // namespace vaticlo
