#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>
#include <QTranslator>
#include <vector>

#include "desktop/finestra_principale.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {

/// The program in a folder of its own behind its main window, driven as a user drives it: by keys, the mouse,
/// and the names of what stands on the screen. A name that is missing, hidden or disabled ends the test; a
/// message or a failure that the test does not ask for fails it at the end.
class PrincipaleProva {
 public:
  PrincipaleProva();
  ~PrincipaleProva();
  PrincipaleProva(const PrincipaleProva&) = delete;
  PrincipaleProva& operator=(const PrincipaleProva&) = delete;

  /// Triggers a menu entry, one of the toolbar's drop-down menus too.
  void scegli(const QString& azione);
  /// A key reaches the widget that has the focus, through the window.
  void premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}, int volte = 1);
  void scrivi(const QString& testo);
  void clicca(const QString& nome);

  /// A widget of the active child window that the user can use.
  template <class T = QWidget>
  [[nodiscard]] T& usa(const QString& nome) const {
    auto* widget = qobject_cast<T*>(&visibile(nome));
    if (widget == nullptr) ferma("another kind of widget: " + nome);
    if (!widget->isEnabled()) ferma("disabled: " + nome);
    return *widget;
  }
  /// What a label, field, list or pane of the active child window shows.
  [[nodiscard]] QString testo(const QString& nome) const;
  /// The texts of the fields of a draw, from f on.
  [[nodiscard]] QString numeri(int f, int quanti = 5) const;
  [[nodiscard]] bool siVede(const QString& nome) const;
  [[nodiscard]] QMdiSubWindow& figlia() const;
  [[nodiscard]] QStringList aperte() const;  ///< the captions of the child windows
  [[nodiscard]] static QString fuoco();      ///< the name of the widget that has the focus
  /// The messages since the last call, as "[title] text".
  [[nodiscard]] QStringList detti();
  /// The numbers of the failures that reached the boundary since the last call.
  [[nodiscard]] QList<int> failures() { return std::exchange(failures_, {}); }

  ProgrammaProva p;

 private:
  [[noreturn]] static void ferma(const QString& perche);
  [[nodiscard]] QWidget& visibile(const QString& nome) const;

  QTranslator italiano_;
  QList<int> failures_;
  Confine confine_;
  frmPrincipale principale_;

 public:
  FinestraPrincipale finestra;
};

}  // namespace vaticlo::prova
