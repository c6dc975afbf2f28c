#include "dialogs/frm_vinc.h"

#include "methods/scansione.h"

namespace vaticlo {

frmVinc::frmVinc(Programma& programma, Cornice& cornice) : ElencoScansione(programma, cornice) {
  Caption("Vincenti alle ultime Estrazioni");
  lblPrev.Caption("Non ci sono previsioni vincenti");
}

std::filesystem::path frmVinc::scansione() {
  ScansionePrevisioni(programma_, *this).PrevVincenti();
  return programma_.cartella.file(kFileVincenti);
}

void frmVinc::UpDown1_Change(int ultime) {
  evento([this, ultime] {
    txtColpi.Text(std::to_string(ultime));
    btnCerca_Click();
  });
}

}  // namespace vaticlo
