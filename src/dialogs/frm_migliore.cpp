#include "dialogs/frm_migliore.h"

#include "methods/scansione.h"
#include "platform/failure.h"
#include "platform/rapporto.h"
#include "statistics/clsstatistica.h"

namespace vaticlo {

frmMigliore::frmMigliore(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {}

void frmMigliore::Form_Load() {
  RichTextBox1.Visible(false);
  Caption(programma_.globals.VistaVincite ? "Vincite Conseguite" : "Previsioni ancora in gioco");
  prendiMisure({5040, 8745, 1200, 2500});
}

void frmMigliore::Form_Activate() {
  RichTextBox1.Visible(true);
  const auto& cartella = programma_.cartella;
  try {
    RichTextBox1.Text(testoRapporto(programma_.globals.VistaVincite ? cartella.file(kFileVincite)
                                                                    : cartella.file(kFilePrevGioco)));
  } catch (const RuntimeFailure&) {
    // The pane stays as it was, without a message.
  }
}

}  // namespace vaticlo
