#include "desktop/validatore.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace vaticlo {

Validatore::Validatore(QWidget* vista, const Confine& confine) : vista_(vista), confine_(confine) {
  qApp->installEventFilter(this);
}

bool Validatore::eventFilter(QObject* oggetto, QEvent* evento) {
  auto* widget = qobject_cast<QWidget*>(oggetto);
  if (widget == nullptr) return false;
  switch (evento->type()) {
    case QEvent::WindowBlocked:
      // A message is about to be shown: the control that it is about has the caret meanwhile.
      if (inProva_ != nullptr && widget == vista_->window()) inProva_->setFocus(Qt::OtherFocusReason);
      return false;
    case QEvent::FocusIn: {
      if (inProva_ != nullptr || !vista_->isAncestorOf(widget)) return false;
      const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
      if (widget == attuale_) return ritorna(widget, motivo);
      return respinge(widget, motivo);
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
      // The toolkit moves the focus, and then delivers the event that moved it.
      return std::exchange(pressionePersa_, false);
    default:
      return false;
  }
}

/// The focus is back where it was, however it comes there: nothing was left, and what was typed goes on.
bool Validatore::ritorna(QWidget* controllo, Qt::FocusReason motivo) {
  if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::MouseFocusReason) return false;
  QFocusEvent rientro(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(controllo, &rientro);
  return true;
}

/// The focus has come to another control. True when one that was left has taken it back.
bool Validatore::respinge(QWidget* verso, Qt::FocusReason motivo) {
  const QPointer<Validatore> vivo = this;
  if (prove_.contains(attuale_)) lasciati_.push_back(attuale_);
  std::erase(lasciati_, verso);
  attuale_ = verso;
  if (esenti_.contains(verso)) return false;
  while (!lasciati_.empty()) {
    inProva_ = lasciati_.front();
    bool trattiene = false;
    confine_.esegui([&] { trattiene = prove_[inProva_](); });
    if (!vivo) return true;
    if (trattiene) {
      attuale_ = inProva_;
      inProva_->setFocus(Qt::OtherFocusReason);
      pressionePersa_ = motivo == Qt::MouseFocusReason;
    }
    std::erase(lasciati_, std::exchange(inProva_, nullptr));
    if (trattiene) return true;
  }
  return false;
}

}  // namespace vaticlo
