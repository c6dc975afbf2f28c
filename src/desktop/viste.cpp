#include "desktop/viste.h"

#include "dialogs/elenco_scansione.h"
#include "dialogs/frm_aggiungi.h"
#include "dialogs/frm_caso.h"
#include "dialogs/frm_copie.h"
#include "dialogs/frm_gestione_metodi.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_metodo.h"
#include "dialogs/frm_migliore.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_quadro.h"
#include "dialogs/frm_ritardi.h"
#include "dialogs/frm_somdif.h"
#include "dialogs/frm_statistica.h"

namespace vaticlo {

namespace {

template <class F>
QWidget* seE(const std::shared_ptr<Finestra>& finestra, const Confine& confine) {
  const auto frm = std::dynamic_pointer_cast<F>(finestra);
  return frm ? vista(frm, confine) : nullptr;
}

template <class... F>
QWidget* traQueste(const std::shared_ptr<Finestra>& finestra, const Confine& confine) {
  QWidget* widget = nullptr;
  (void)((widget = seE<F>(finestra, confine)) || ...);
  return widget;
}

}  // namespace

QWidget* disegna(const std::shared_ptr<Finestra>& finestra, const Confine& confine) {
  return traQueste<frmInserisci, frmModifica, frmMetodo, frmInsPrev, frmStatistica, ElencoScansione,
                   frmSomdif, frmAggiungi, frmCopie, frmGestioneMetodi, frmMigliore, frmQuadro, frmCaso,
                   frmRitardi, frmInfo>(finestra, confine);
}

}  // namespace vaticlo
