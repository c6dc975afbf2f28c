#include "dialogs/frm_prev.h"

#include "methods/scansione.h"

namespace vaticlo {

frmPrev::frmPrev(Programma& programma, Cornice& cornice) : ElencoScansione(programma, cornice) {
  Caption("Previsioni in Gioco");
  lblPrev.Caption("Non ci sono previsioni in gioco");
  btnStampa.Click = [this] { btnStampa_Click(); };
}

std::filesystem::path frmPrev::scansione() {
  ScansionePrevisioni(programma_, *this).PrevInGioco();
  return programma_.cartella.file(kFilePrevGioco);
}

void frmPrev::btnStampa_Click() {
  evento([this] {
    // Meant: the title, which is not the program's name.
    if (programma_.servizi.mostra({"Stampo la previsione?", "Ambolino", Genere::Domanda}) == Risposta::Si)
      programma_.servizi.stampa(RichTextBox1.Text());
  });
}

}  // namespace vaticlo
