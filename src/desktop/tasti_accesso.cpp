#include "desktop/tasti_accesso.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QToolButton>

#include "controls/xpcmdbutton.h"

namespace vaticlo {

TastiAccesso::TastiAccesso(QMdiArea* area) : QObject(area), area_(area) { qApp->installEventFilter(this); }

bool TastiAccesso::eventFilter(QObject* oggetto, QEvent* evento) {
  // The override is asked for first and keeps the key from the menu bar; the press itself follows.
  const bool chiesto = evento->type() == QEvent::ShortcutOverride;
  const bool premuto = evento->type() == QEvent::KeyPress && oggetto->isWidgetType();
  if (!chiesto && !premuto) return QObject::eventFilter(oggetto, evento);
  const auto& tasto = *static_cast<QKeyEvent*>(evento);
  const bool preso = (premuto && (invio(oggetto, tasto) || iniziale(oggetto, tasto))) ||
                     (figliaInAttesa() && (chiude(tasto, premuto) || premi(tasto, premuto)));
  if (!preso) return QObject::eventFilter(oggetto, evento);
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
  const QKeySequence cercata(Qt::ALT | static_cast<Qt::Key>(tasto.key()));
  QList<xpcmdbutton*> suoi;
  for (auto* pulsante : area_->activeSubWindow()->findChildren<xpcmdbutton*>())
    if (pulsante->isVisible() && pulsante->shortcut() == cercata) suoi << pulsante;
  if (suoi.isEmpty()) return false;
  // The key of a disabled button still belongs to the window: it must not open another one from the menu
  // bar.
  if (!davvero || tasto.isAutoRepeat()) return true;
  const bool unoSolo = suoi.size() == 1;
  const auto inattivo = [](const xpcmdbutton* pulsante) { return !pulsante->isEnabled(); };
  suoi.removeIf(inattivo);
  if (suoi.isEmpty()) return true;
  auto* prossimo = suoi[(suoi.indexOf(area_->window()->focusWidget()) + 1) % suoi.size()];
  prossimo->setFocus(Qt::ShortcutFocusReason);
  if (unoSolo && prossimo->hasFocus()) prossimo->click();  // a field that fails its test keeps the focus
  return true;
}

bool TastiAccesso::invio(QObject* oggetto, const QKeyEvent& tasto) const {
  const bool suo =
      qobject_cast<xpcmdbutton*>(oggetto) != nullptr || qobject_cast<QToolButton*>(oggetto) != nullptr;
  auto* pulsante = qobject_cast<QAbstractButton*>(oggetto);
  if (!suo || (tasto.key() != Qt::Key_Return && tasto.key() != Qt::Key_Enter)) return false;
  if (pulsante->window() != area_->window() || !pulsante->isEnabled()) return false;
  if (!tasto.isAutoRepeat()) pulsante->click();
  return true;
}

bool TastiAccesso::iniziale(QObject* oggetto, const QKeyEvent& tasto) {
  auto* menu = qobject_cast<QMenu*>(oggetto);
  const auto lettera = tasto.text().toUpper();
  if (menu == nullptr || lettera.size() != 1 || !lettera[0].isLetterOrNumber()) return false;
  QList<QAction*> sue;
  for (auto* voce : menu->actions()) {
    if (!voce->isVisible() || !voce->isEnabled()) continue;
    const auto accesso = QKeySequence::mnemonic(voce->text());
    if (accesso == QKeySequence(Qt::ALT | static_cast<Qt::Key>(lettera[0].unicode()))) return false;
    if (accesso.isEmpty() && voce->text().startsWith(lettera, Qt::CaseInsensitive)) sue << voce;
  }
  if (sue.isEmpty()) return false;
  menu->setActiveAction(sue[(sue.indexOf(menu->activeAction()) + 1) % sue.size()]);
  QKeyEvent scelta(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  if (sue.size() == 1) QApplication::sendEvent(menu, &scelta);
  return true;
}

}  // namespace vaticlo
