#pragma once

#include <QMdiSubWindow>
#include <QTest>

#include "desktop/vista_principale.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {

/// The program in a folder of its own behind its main window, driven by keys, by the mouse and by the names
/// of what stands on the screen. A name that is missing, hidden or disabled ends the test; a message or a
/// failure that the test does not ask for fails it at the end.
struct PrincipaleProva {
  PrincipaleProva();
  ~PrincipaleProva();

  void scegli(const QString& voce);  ///< an entry of the menu or of a button's drop-down menu
  void premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}, int volte = 1);
  void scrivi(const QString& testo);
  void clicca(const QString& nome);
  void stampa();  ///< the print button, with a No and then with a Yes to its question

  /// A widget of the active child window that can be used.
  template <class T = QWidget>
  [[nodiscard]] T& usa(const QString& nome) const {
    auto* widget = qobject_cast<T*>(&visibile(nome));
    if (widget == nullptr || !widget->isEnabled()) ferma("disabled, or of another kind: " + nome);
    return *widget;
  }
  /// What a label, field, list or pane of the active child window shows.
  [[nodiscard]] QString testo(const QString& nome) const;
  [[nodiscard]] QString numeri(int f, int quanti = 5) const;  ///< of the draw shown, from field f on
  [[nodiscard]] QWidget& visibile(const QString& nome) const;
  [[nodiscard]] QMdiSubWindow& figlia() const;
  [[nodiscard]] QStringList aperte() const;  ///< the captions of the child windows
  [[nodiscard]] static QString fuoco();      ///< the name of the widget with the focus
  [[nodiscard]] QStringList detti();         ///< the messages since the last call, as "[title] text"
  /// Those at the boundary since the last call, by number.
  [[nodiscard]] QList<int> failures() { return std::exchange(giunte, {}); }
  [[noreturn]] static void ferma(const QString& perche);

  ProgrammaProva p;
  QList<int> giunte;
  Confine confine{[this](const RuntimeFailure& failure) { giunte << failure.numero(); }};
  frmPrincipale principale{p.programma};
  VistaPrincipaleQt finestra{principale, confine};
};

}  // namespace vaticlo::prova
