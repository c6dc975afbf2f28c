#pragma once

#include <QMainWindow>
#include <QPointer>

#include "desktop/confine.h"
#include "dialogs/frm_principale.h"
#include "platform/presenza.h"

class QMdiArea;
class QMdiSubWindow;

namespace vaticlo {

class BarraDiStato;
class VistaInizio;

/// Draws the main window: menu and toolbar from their tables, the open dialogs as child windows of a
/// multiple-document area.
class VistaPrincipaleQt : public QMainWindow, private VistaPrincipale {
 public:
  VistaPrincipaleQt(frmPrincipale& principale, const Confine& confine);
  ~VistaPrincipaleQt() override;

 protected:
  QMenu* createPopupMenu() override { return nullptr; }  // none that could hide the toolbar
  bool event(QEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void mostra(const std::shared_ptr<Finestra>& finestra) override;
  void portaSu(Finestra& finestra) override;
  void togli(Finestra& finestra) override;
  void chiudiPrincipale() override { close(); }
  void abilitaComandi(bool abilitati) override;
  void mostraGuida(const std::filesystem::path& pagina) override;

  void creaMenu();
  void creaBarra();
  void aggiornaInizio();
  void aggiornaAvvisi();
  void creaScorciatoie();
  [[nodiscard]] QSize massima() const;
  void faiPosto(QMdiSubWindow& figlia);
  [[nodiscard]] QMdiSubWindow* figlia(const Finestra& finestra) const;
  [[nodiscard]] std::shared_ptr<Finestra> finestraDi(const QObject* figlia) const;

  frmPrincipale& principale_;
  const Confine& confine_;
  QMdiArea* area_;
  VistaInizio* inizio_;
  BarraDiStato* stato_;
  Presenza presenza_;
  bool mostrando_ = false;
  QPointer<QWidget> fuoco_, guida_;
};

}  // namespace vaticlo
