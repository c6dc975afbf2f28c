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
  QList<xpcmdbutton*> pulsanti;
  bool disabilitato = false;
  for (auto* pulsante : figlia->findChildren<xpcmdbutton*>()) {
    if (!pulsante->isVisible() || pulsante->shortcut() != cercata) continue;
    disabilitato = disabilitato || !pulsante->isEnabled();
    if (pulsante->isEnabled()) pulsanti.append(pulsante);
  }
  // The key of a disabled button is the window's all the same: it must not open another one from the menu
  // bar.
  if (pulsanti.isEmpty()) return disabilitato;
  if (!davvero || tasto.isAutoRepeat()) return true;
  const auto conFocus = pulsanti.indexOf(qobject_cast<xpcmdbutton*>(QApplication::focusWidget()));
  pulsanti.at((conFocus + 1) % pulsanti.size())->setFocus(Qt::ShortcutFocusReason);
  if (pulsanti.size() == 1 || conFocus < 0) pulsanti.front()->click();
  return true;
}

}  // namespace vaticlo
