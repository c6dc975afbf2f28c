#pragma once

#include <QObject>

class QKeyEvent;
class QMdiArea;

namespace vaticlo {

/// Access keys of the active child window come before those of the menu bar: in a draw window Alt+S is
/// "&Salva", not "&Statistica". Where buttons share a letter it leads the focus from one to the next and
/// presses none. Enter presses the button that has the focus. Ctrl+F4 and Ctrl+W close the active child
/// window. In a menu an entry without an access key answers to its first letter.
class TastiAccesso : public QObject {
 public:
  explicit TastiAccesso(QMdiArea* area);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  /// A child window is active, and neither a box nor a menu stands before it.
  [[nodiscard]] bool figliaInAttesa() const;
  // Whether the key is theirs; with `davvero` they do what it asks for.
  [[nodiscard]] bool chiude(const QKeyEvent& tasto, bool davvero) const;
  [[nodiscard]] bool premi(const QKeyEvent& tasto, bool davvero) const;
  [[nodiscard]] bool invio(QObject* oggetto, const QKeyEvent& tasto) const;
  [[nodiscard]] static bool iniziale(QObject* oggetto, const QKeyEvent& tasto);

  QMdiArea* area_;
};

}  // namespace vaticlo
