#pragma once

#include <QScrollArea>

#include "desktop/confine.h"

namespace vaticlo {

class frmPrincipale;
struct PaginaIniziale;
struct PulsanteIniziale;

/// The page in the empty area of the main window, behind the child windows.
class VistaInizio : public QScrollArea {
 public:
  VistaInizio(QWidget* area, frmPrincipale& principale, const Confine& confine);

  void mostra(const PaginaIniziale& pagina);
  /// Whether its buttons answer to their access keys: only while no child window covers them.
  void tastiAccesso(bool accesi);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QWidget* pulsante(const PulsanteIniziale& pulsante);

  frmPrincipale& principale_;
  const Confine& confine_;
  bool conTasti_ = true;
};

}  // namespace vaticlo
