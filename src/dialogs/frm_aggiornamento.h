#pragma once

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Fetches the reserve copy of the archive into a file beside the archive, which nothing else reads.
class frmAggiornamento : public Finestra {
 public:
  frmAggiornamento(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void btninizia_Click();
  void btnAnnulla_Click();

  Pulsante btninizia{"Command1", "Scarica la copia di riserva dell'archivio"};
  Pulsante btnAnnulla{"&Esci", "Chiudi la finestra"};
  Avanzamento ProgressBar1;

 private:
  Programma& programma_;
};

}  // namespace vaticlo
