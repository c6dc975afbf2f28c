#include "controls/xpgroupbox.h"

#include <QMouseEvent>
#include <QPainter>

#include "controls/accessibilita.h"
#include "controls/geometria_riquadro.h"
#include "controls/illustrazioni.h"

namespace vaticlo {
namespace {

constexpr int kStacco = 4;  // the frame's line stops so far from the caption

GeometriaRiquadro geometria(const QSize& controllo, const QSize& didascalia) {
  return disponiRiquadro({controllo.width(), controllo.height()}, {didascalia.width(), didascalia.height()});
}

QRect qt(const Rettangolo& r) { return {r.x, r.y, r.larghezza, r.altezza}; }

}  // namespace

xpgroupbox::xpgroupbox(QWidget* parent) : QWidget(parent) {
  installaAccessibilita();
  setMouseTracking(true);
  disponi();
}

xpgroupbox::xpgroupbox(const QString& caption, QWidget* parent) : xpgroupbox(parent) { setCaption(caption); }

void xpgroupbox::setCaption(const QString& caption) {
  caption_ = caption;
  setAccessibleName(caption);
  disponi();
}

void xpgroupbox::setBackColor(const QColor& colore) {
  fondo_ = colore;
  immagini_.dimentica();
  update();
}

QSize xpgroupbox::minimumSizeHint() const {
  const int larghezza = misuraDidascalia().width() + 2 * kSinistraDidascalia;
  return QWidget::minimumSizeHint().expandedTo(
      {larghezza, contentsMargins().top() + contentsMargins().bottom()});
}

QSize xpgroupbox::misuraDidascalia() const {
  return {fontMetrics().horizontalAdvance(caption_), fontMetrics().height()};
}

void xpgroupbox::disponi() {
  const Rettangolo interno = geometria({0, 0}, misuraDidascalia()).interno;
  setContentsMargins(interno.x, interno.y, -interno.larghezza - interno.x, -interno.altezza - interno.y);
  updateGeometry();
  update();
}

void xpgroupbox::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  const GeometriaRiquadro parti = geometria(size(), misuraDidascalia());
  const QRect didascalia = qt(parti.didascalia);
  const QColor fondo = fondo_ == QColor(255, 255, 0) ? QColor(Qt::transparent) : fondo_;
  const auto dipingi = [&](qreal rapporto) { return dipingiRiquadro(palette(), fondo, rapporto); };
  pennello.save();
  if (!caption_.isEmpty()) {
    pennello.setClipRegion(QRegion(rect()) - didascalia.adjusted(-kStacco, 0, kStacco, 0));
  }
  disegnaNovePezzi(pennello, qt(parti.cornice), immagini_.prendi(0, devicePixelRatioF(), dipingi));
  pennello.restore();
  if (!caption_.isEmpty() && fondo.alpha() > 0) {  // the line alone stops at the caption
    const auto sotto = qt(parti.cornice).adjusted(0, 1, 0, 0);
    pennello.fillRect(didascalia.adjusted(-kStacco, 0, kStacco, 0) & sotto, fondo);
  }
  pennello.setPen(isEnabled() ? palette().color(QPalette::WindowText) : coloreDisabilitato());
  pennello.drawText(didascalia, Qt::AlignLeft | Qt::AlignVCenter, caption_);
}

void xpgroupbox::mousePressEvent(QMouseEvent* evento) {
  doppio_ = false;
  Q_EMIT MouseDown(evento->button(), evento->modifiers(), evento->position().toPoint());
}

void xpgroupbox::mouseMoveEvent(QMouseEvent* evento) {
  Q_EMIT MouseMove(evento->buttons(), evento->modifiers(), evento->position().toPoint());
}

void xpgroupbox::mouseReleaseEvent(QMouseEvent* evento) {
  const auto dove = evento->position().toPoint();
  Q_EMIT MouseUp(evento->button(), evento->modifiers(), dove);
  if (!doppio_ && rect().contains(dove)) Q_EMIT Click();
}

void xpgroupbox::mouseDoubleClickEvent(QMouseEvent* evento) {
  doppio_ = true;
  Q_EMIT MouseDown(evento->button(), evento->modifiers(), evento->position().toPoint());
  Q_EMIT DblClick();
}

void xpgroupbox::changeEvent(QEvent* evento) {
  if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) disponi();
  if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::EnabledChange)
    immagini_.dimentica();
  QWidget::changeEvent(evento);
}

}  // namespace vaticlo
