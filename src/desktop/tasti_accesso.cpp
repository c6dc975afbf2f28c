#include "desktop/tasti_accesso.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "controls/xpcmdbutton.h"

namespace vaticlo {

TastiAccesso::TastiAccesso(QMdiArea* area) : QObject(area), area_(area) { qApp->installEventFilter(this); }

bool TastiAccesso::eventFilter(QObject* oggetto, QEvent* evento) {
  // The override is asked for first and keeps the key from the menu bar; the press itself follows.
  const bool chiesto = evento->type() == QEvent::ShortcutOverride;
  const bool premuto = evento->type() == QEvent::KeyPress && oggetto->isWidgetType();
  if (!chiesto && !premuto) return QObject::eventFilter(oggetto, evento);
  const auto& tasto = *static_cast<QKeyEvent*>(evento);
  if (!figliaInAttesa() || (!chiude(tasto, premuto) && !premi(tasto, premuto)))
    return QObject::eventFilter(oggetto, evento);
  evento->accept();
  return true;
}

bool TastiAccesso::figliaInAttesa() const {
  return QApplication::activePopupWidget() == nullptr && QApplication::activeModalWidget() == nullptr &&
         area_->activeSubWindow() != nullptr && QApplication::activeWindow() == area_->window();
}

bool TastiAccesso::chiude(const QKeyEvent& tasto, bool davvero) const {
  const bool chiusura =
      tasto.modifiers() == Qt::ControlModifier && (tasto.key() == Qt::Key_F4 || tasto.key() == Qt::Key_W);
  if (chiusura && davvero) area_->closeActiveSubWindow();
  return chiusura;
}

bool TastiAccesso::premi(const QKeyEvent& tasto, bool davvero) const {
  if (tasto.modifiers() != Qt::AltModifier) return false;
  const auto* figlia = area_->activeSubWindow();
  const QKeySequence cercata(Qt::ALT | static_cast<Qt::Key>(tasto.key()));
  bool disabilitato = false;
  for (auto* pulsante : figlia->findChildren<xpcmdbutton*>()) {
    if (!pulsante->isVisible() || pulsante->shortcut() != cercata) continue;
    if (!pulsante->isEnabled()) {
      disabilitato = true;
      continue;
    }
    if (davvero && !tasto.isAutoRepeat()) {
      pulsante->setFocus(Qt::ShortcutFocusReason);
      if (pulsante->hasFocus()) pulsante->click();  // a field that fails its test does not let the focus go
    }
    return true;
  }
  // The key of a disabled button is the window's all the same: it must not open another one from the menu
  // bar.
  return disabilitato;
}

}  // namespace vaticlo
