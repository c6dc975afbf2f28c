#include "dialogs/frm_info.h"

namespace vaticlo {

frmInfo::frmInfo(Programma& /*programma*/, Cornice& cornice)
    : Finestra(cornice), Label3("Versione " VATICLO_VERSION " · software libero, sorgenti con licenza MIT") {
  Caption("Informazione su");
}

void frmInfo::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({4965, 6135, 900, 3500});
}

}  // namespace vaticlo
