#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "desktop/confine.h"

class QWidget;

namespace vaticlo {

/// Lets the controls of a window validate themselves when they are left, which is when the focus comes to
/// another control of the same window that asks for it. A control left for one that does not ask is tested
/// as soon as the focus goes on from there. Whatever else takes the focus away (frame, menu, another window)
/// leaves no control. The test runs inside the event that moves the focus: a control that fails has the focus
/// again, and the mouse press that led away from it is lost.
class Validatore : public QObject {
 public:
  Validatore(QWidget* vista, const Confine& confine);

  /// `trattiene` runs when the control is left; true keeps the focus there.
  void prova(QWidget* controllo, std::function<bool()> trattiene) {
    prove_[controllo] = std::move(trattiene);
  }
  /// The control is reached without a test of those that were left.
  void nonChiede(QWidget* controllo) { esenti_.insert(controllo); }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  [[nodiscard]] static bool ritorna(QWidget* controllo, Qt::FocusReason motivo);
  [[nodiscard]] bool respinge(QWidget* verso, Qt::FocusReason motivo);

  QWidget* vista_;
  const Confine& confine_;
  std::map<const QWidget*, std::function<bool()>> prove_;
  std::set<const QWidget*> esenti_;
  QWidget* attuale_ = nullptr;      // which control of the window has the focus, or had it last
  std::vector<QWidget*> lasciati_;  // not tested yet, in order
  QWidget* inProva_ = nullptr;
  bool pressionePersa_ = false;
};

}  // namespace vaticlo
