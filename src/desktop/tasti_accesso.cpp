#include "desktop/tasti_accesso.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>

#include "controls/xpcmdbutton.h"

namespace vaticlo {

TastiAccesso::TastiAccesso(QMdiArea* area) : QObject(area), area_(area) {
  qApp->installEventFilter(this);
  for (const auto& tasti : {QKeySequence(Qt::CTRL | Qt::Key_F4), QKeySequence(Qt::CTRL | Qt::Key_W)})
    connect(new QShortcut(tasti, area->window()), &QShortcut::activated, area,
            &QMdiArea::closeActiveSubWindow);
}

bool TastiAccesso::eventFilter(QObject* oggetto, QEvent* evento) {
  // The override is asked for first and keeps the key from the menu bar; the press itself follows.
  if (evento->type() == QEvent::ShortcutOverride && premi(*static_cast<QKeyEvent*>(evento), false)) {
    evento->accept();
    return true;
  }
  if (evento->type() == QEvent::KeyPress && oggetto->isWidgetType() &&
      premi(*static_cast<QKeyEvent*>(evento), true))
    return true;
  return QObject::eventFilter(oggetto, evento);
}

bool TastiAccesso::premi(const QKeyEvent& tasto, bool davvero) const {
  if (tasto.modifiers() != Qt::AltModifier) return false;
  if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr)
    return false;
  const auto* figlia = area_->activeSubWindow();
  if (figlia == nullptr || QApplication::activeWindow() != area_->window()) return false;
  const QKeySequence cercata(Qt::ALT | static_cast<Qt::Key>(tasto.key()));
  for (auto* pulsante : figlia->findChildren<xpcmdbutton*>()) {
    if (!pulsante->isVisible() || !pulsante->isEnabled() || pulsante->shortcut() != cercata) continue;
    if (davvero && !tasto.isAutoRepeat()) {
      pulsante->setFocus(Qt::ShortcutFocusReason);
      pulsante->click();
    }
    return true;
  }
  return false;
}

}  // namespace vaticlo
