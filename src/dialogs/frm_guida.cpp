#include "dialogs/frm_guida.h"

namespace vaticlo {

frmGuida::frmGuida(Programma& programma, Cornice& cornice)
    : Finestra(cornice), pagina(programma.cartella.guida()) {
  Caption("Guida");
}

void frmGuida::Form_Load() { prendiMisure({8400, 14850, 100, 100}); }

}  // namespace vaticlo
