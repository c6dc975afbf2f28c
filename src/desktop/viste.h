#pragma once

#include <memory>

#include "desktop/confine.h"
#include "forms/finestra.h"

class QWidget;

namespace vaticlo {

class ElencoScansione;
class frmAggiungi;
class frmCopie;
class frmCaso;
class frmInfo;
class frmInserisci;
class frmInsPrev;
class frmGestioneMetodi;
class frmMetodo;
class frmMigliore;
class frmModifica;
class frmQuadro;
class frmRitardi;
class frmSomdif;
class frmStatistica;

/// The property of a view that names the widget which has the focus when the window opens.
inline constexpr const char* kPrimoFuoco = "primoFuoco";

/// Makes the widgets of a dialog: a layout and its binding. The widget keeps the dialog alive as long as it
/// lives.
[[nodiscard]] QWidget* disegna(const std::shared_ptr<Finestra>& finestra, const Confine& confine);

[[nodiscard]] QWidget* vista(const std::shared_ptr<ElencoScansione>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmAggiungi>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmCopie>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmCaso>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmInfo>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmInserisci>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmInsPrev>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmGestioneMetodi>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmMetodo>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmMigliore>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmModifica>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmQuadro>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmRitardi>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmSomdif>& frm, const Confine& confine);
[[nodiscard]] QWidget* vista(const std::shared_ptr<frmStatistica>& frm, const Confine& confine);

}  // namespace vaticlo
