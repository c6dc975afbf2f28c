#include "controls/xpcmdbutton.h"

#include <QPainter>

#include "controls/illustrazioni.h"

namespace vaticlo {
namespace {

constexpr int kMargineOrizzontale = 14;
constexpr int kMargineVerticale = 6;
constexpr int kMargineFuoco = 2;

}  // namespace

xpcmdbutton::xpcmdbutton(QWidget* parent) : ControlloDisegnato(parent) {
  stato_.MouseOut = [this] { Q_EMIT MouseOut(); };
  connect(this, &QObject::objectNameChanged, this, [this](const QString& nome) {
    if (text() == nomeMostrato_) setText(nome);
    nomeMostrato_ = nome;
  });
}

xpcmdbutton::xpcmdbutton(const QString& caption, QWidget* parent) : xpcmdbutton(parent) { setText(caption); }

void xpcmdbutton::setState(int state) {
  stato_.setState(state);
  update();
}

void xpcmdbutton::Aggiorna() {
  stato_.Aggiorna();
  update();
}

AspettoPulsante xpcmdbutton::aspetto() const {
  return isDown() && isEnabled() ? AspettoPulsante::Premuto
                                 : stato_.aspetto();  // the space bar holds it down too
}

QSize xpcmdbutton::sizeHint() const {
  const QSize didascalia = misuraDidascalia();
  const int minima =
      8 * fontMetrics().averageCharWidth();  // short captions still give a button that is easy to hit
  return {qMax(didascalia.width(), minima) + 2 * kMargineOrizzontale,
          didascalia.height() + 2 * kMargineVerticale};
}

void xpcmdbutton::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  const AspettoPulsante mostrato = aspetto();
  const auto dipingi = [&](qreal rapporto) { return dipingiPulsante(mostrato, palette(), rapporto); };
  disegnaNovePezzi(pennello, rect(),
                   immagini().prendi(static_cast<int>(mostrato), devicePixelRatioF(), dipingi));
  scriviDidascalia(pennello, rect(), Qt::AlignCenter);
  if (hasFocus()) {
    disegnaFuoco(pennello, rect().adjusted(kMargineFuoco, kMargineFuoco, -kMargineFuoco, -kMargineFuoco),
                 palette().color(QPalette::Highlight));
  }
}

}  // namespace vaticlo
