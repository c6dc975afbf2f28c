#include "controls/xpradiobutton.h"

#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QPainter>
#include <algorithm>

#include "controls/accessibilita.h"
#include "controls/illustrazioni.h"

namespace vaticlo {
namespace {

constexpr int kMargine = 3;
constexpr int kDistacco = 5;  // between the picture and the caption

}  // namespace

xpradiobutton::xpradiobutton(QWidget* parent) : ControlloDisegnato(parent) {
  installaAccessibilita();
  setCheckable(true);
  setForegroundRole(QPalette::WindowText);
  stato_.MouseOut = [this] { Q_EMIT MouseOut(); };
  stato_.Click = [this] { Q_EMIT Click(); };
  stato_.ValueChanged = [this](bool value) { setChecked(value); };
  stato_.opzioniDellaFinestra = [this] { return opzioniDellaFinestra(); };
  connect(this, &QAbstractButton::toggled, this, [this](bool acceso) { setValue(acceso); });
}

xpradiobutton::xpradiobutton(const QString& caption, QWidget* parent) : xpradiobutton(parent) {
  setText(caption);
}

void xpradiobutton::setValue(bool value) {
  stato_.setValue(value);
  update();
}

QColor xpradiobutton::BackColor() const { return palette().color(QPalette::Window); }

void xpradiobutton::setBackColor(const QColor& colore) {
  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::Window, colore);
  setPalette(tavolozza);
  setAutoFillBackground(true);
}

QColor xpradiobutton::ForeColor() const { return palette().color(QPalette::Active, QPalette::WindowText); }

void xpradiobutton::setForeColor(const QColor& colore) {
  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::WindowText, colore);
  setPalette(tavolozza);
}

void xpradiobutton::alClic() {
  stato_.clicca();
  ridisegna();
}

/// The window of the group: of a child window of a main frame it is the widget inside the frame.
const QWidget* xpradiobutton::finestra() const {
  const QWidget* widget = this;
  while (!widget->isWindow() && widget->parentWidget() &&
         !qobject_cast<QMdiSubWindow*>(widget->parentWidget())) {
    widget = widget->parentWidget();
  }
  return widget;
}

std::vector<xpradiobutton*> xpradiobutton::gruppo() const {
  std::vector<xpradiobutton*> opzioni;
  for (xpradiobutton* opzione : finestra()->findChildren<xpradiobutton*>()) {
    if (opzione->finestra() == finestra())
      opzioni.push_back(opzione);  // not those of a window inside this one
  }
  return opzioni;
}

std::vector<StatoOpzione*> xpradiobutton::opzioniDellaFinestra() const {
  std::vector<StatoOpzione*> stati;
  for (xpradiobutton* opzione : gruppo()) stati.push_back(&opzione->stato_);
  return stati;
}

/// The arrows choose the next option of the group, as in the toolkit's own ones.
void xpradiobutton::keyPressEvent(QKeyEvent* tasto) {
  const bool avanti = tasto->key() == Qt::Key_Down || tasto->key() == Qt::Key_Right;
  const bool indietro = tasto->key() == Qt::Key_Up || tasto->key() == Qt::Key_Left;
  if (!avanti && !indietro) {
    ControlloDisegnato::keyPressEvent(tasto);
    return;
  }
  const auto opzioni = gruppo();
  const auto quante = opzioni.size();
  auto posto = static_cast<std::size_t>(std::find(opzioni.begin(), opzioni.end(), this) - opzioni.begin());
  do {
    posto = (posto + (avanti ? 1 : quante - 1)) % quante;
  } while (opzioni[posto] != this && !(opzioni[posto]->isEnabled() && opzioni[posto]->isVisible()));
  Q_EMIT KeyDown(tasto->key(), tasto->modifiers());
  opzioni[posto]->setFocus(avanti ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  opzioni[posto]->click();
}

AspettoOpzione xpradiobutton::aspetto() const {
  if (isDown() && isEnabled()) return Value() ? AspettoOpzione::AccesaPremuta : AspettoOpzione::SpentaPremuta;
  return stato_.aspetto();
}

int xpradiobutton::lato() const { return qMax(13, fontMetrics().height() * 7 / 8); }

QSize xpradiobutton::sizeHint() const {
  const QSize didascalia = text().isEmpty() ? QSize() : misuraDidascalia() + QSize(kDistacco + kMargine, 0);
  return {lato() + qMax(0, didascalia.width()) + 2 * kMargine,
          qMax(lato(), didascalia.height()) + 2 * kMargine};
}

void xpradiobutton::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  const AspettoOpzione mostrato = aspetto();
  const QRect figura(kMargine, (height() - lato()) / 2, lato(), lato());
  const auto dipingi = [&](qreal rapporto) { return dipingiOpzione(mostrato, palette(), lato(), rapporto); };
  disegnaImmagine(pennello, figura,
                  immagini().prendi(static_cast<int>(mostrato), devicePixelRatioF(), dipingi));
  const QRect didascalia = rect().adjusted(figura.right() + 1 + kDistacco, 0, -kMargine, 0);
  scriviDidascalia(pennello, didascalia, Qt::AlignLeft | Qt::AlignVCenter);
  if (hasFocus()) disegnaFuoco(pennello, rect(), palette().color(QPalette::Highlight));
}

}  // namespace vaticlo
