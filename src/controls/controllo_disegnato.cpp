#include "controls/controllo_disegnato.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>

#include "controls/illustrazioni.h"

namespace vaticlo {

ControlloDisegnato::ControlloDisegnato(QWidget* parent) : QAbstractButton(parent), Timer1_(this) {
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  Timer1_.setObjectName(QStringLiteral("Timer1"));
  Timer1_.setInterval(kIntervalloTimer1);
  connect(&Timer1_, &QTimer::timeout, this, &ControlloDisegnato::guardaIlPuntatore);
  connect(this, &QAbstractButton::clicked, this, [this] { alClic(); });
}

/// Called after each event of the state: the timer and the picture follow it.
void ControlloDisegnato::ridisegna() {
  if (!stato().timer1Acceso()) {
    Timer1_.stop();
  } else if (!Timer1_.isActive()) {
    Timer1_.start();
  }
  update();
}

void ControlloDisegnato::guardaIlPuntatore() {
  const bool premuto = stato().premuto();
  stato().Timer1_Timer(isVisible() && rect().contains(mapFromGlobal(QCursor::pos())));
  if (stato().timer1Acceso()) return;
  if (premuto) setDown(false);  // what the space bar holds down stays so
  ridisegna();
}

bool ControlloDisegnato::event(QEvent* evento) {
  if (evento->type() == QEvent::Shortcut) {
    const auto* tasto = static_cast<QShortcutEvent*>(evento);
    // The toolkit would hold the button down for a moment first; an access key is a click at once.
    if (tasto->key() == shortcut() && !tasto->isAmbiguous()) {
      if (focusPolicy() != Qt::NoFocus) setFocus(Qt::ShortcutFocusReason);
      click();
      return true;
    }
  }
  return QAbstractButton::event(evento);
}

void ControlloDisegnato::mousePressEvent(QMouseEvent* evento) {
  Q_EMIT MouseDown(evento->button(), evento->modifiers(), evento->position().toPoint());
  if (evento->button() == Qt::LeftButton) stato().MouseDown();
  ridisegna();
  QAbstractButton::mousePressEvent(evento);
}

void ControlloDisegnato::mouseMoveEvent(QMouseEvent* evento) {
  const auto dove = evento->position().toPoint();
  const bool dentro = rect().contains(dove);
  if (dentro) Q_EMIT MouseMove(evento->buttons(), evento->modifiers(), dove);
  stato().MouseMove(dentro, evento->buttons().testFlag(Qt::LeftButton));
  ridisegna();
  QAbstractButton::mouseMoveEvent(evento);
}

void ControlloDisegnato::mouseReleaseEvent(QMouseEvent* evento) {
  Q_EMIT MouseUp(evento->button(), evento->modifiers(), evento->position().toPoint());
  stato().MouseUp();  // before the click, whose handler may show a message over the button
  ridisegna();
  QAbstractButton::mouseReleaseEvent(evento);
}

void ControlloDisegnato::keyPressEvent(QKeyEvent* tasto) {
  Q_EMIT KeyDown(tasto->key(), tasto->modifiers());
  if (!tasto->text().isEmpty()) Q_EMIT KeyPress(tasto->text());
  QAbstractButton::keyPressEvent(tasto);
}

void ControlloDisegnato::keyReleaseEvent(QKeyEvent* tasto) {
  Q_EMIT KeyUp(tasto->key(), tasto->modifiers());
  QAbstractButton::keyReleaseEvent(tasto);
}

void ControlloDisegnato::changeEvent(QEvent* evento) {
  switch (evento->type()) {
    case QEvent::EnabledChange:
      stato().setEnabled(isEnabled());
      break;
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
      immagini_.dimentica();
      break;
    default:
      break;
  }
  QAbstractButton::changeEvent(evento);
}

QSize ControlloDisegnato::misuraDidascalia() const {
  return fontMetrics().size(Qt::TextShowMnemonic, text());
}

void ControlloDisegnato::scriviDidascalia(QPainter& pennello, const QRect& area, int allineamento) const {
  pennello.setPen(isEnabled() ? palette().color(foregroundRole()) : coloreDisabilitato());
  pennello.drawText(area, allineamento | Qt::TextShowMnemonic, text());
}

}  // namespace vaticlo
