#include "controls/pittura.h"

#include <QPainter>

#include "controls/nove_pezzi.h"

namespace vaticlo {
namespace {

/// While it lives the painter works in device pixels; `area` is the given area in them.
class InPixel {
 public:
  InPixel(QPainter& pennello, const QRect& logica) : pennello_(pennello) {
    pennello_.save();
    const QTransform dispositivo = pennello_.deviceTransform();
    const QRectF esatta = dispositivo.mapRect(QRectF(logica));
    area = QRect(QPoint(qRound(esatta.left()), qRound(esatta.top())),
                 QPoint(qRound(esatta.right()) - 1, qRound(esatta.bottom()) - 1));
    pennello_.setTransform(dispositivo.inverted(), true);
  }
  ~InPixel() { pennello_.restore(); }
  InPixel(const InPixel&) = delete;
  InPixel& operator=(const InPixel&) = delete;

  QRect area;

 private:
  QPainter& pennello_;
};

QRect qt(const Rettangolo& r) { return {r.x, r.y, r.larghezza, r.altezza}; }

}  // namespace

const QImage& SerieImmagini::prendi(int indice, qreal rapporto, const Dipingi& dipingi) {
  if (!qFuzzyCompare(rapporto, rapporto_)) dimentica();
  rapporto_ = rapporto;
  const auto [posto, nuova] = immagini_.try_emplace(indice);
  if (nuova) posto->second = dipingi(rapporto);
  return posto->second;
}

void disegnaNovePezzi(QPainter& pennello, const QRect& area, const QImage& immagine) {
  const InPixel pixel(pennello, area);
  pennello.setRenderHint(QPainter::SmoothPixmapTransform);
  const int angolo = qRound(static_cast<qreal>(kAngolo) * immagine.width() / kMisuraImmagine.larghezza);
  const Misura origine{immagine.width(), immagine.height()};
  for (const Pezzo& pezzo : novePezzi({pixel.area.width(), pixel.area.height()}, origine, angolo)) {
    const QRect destinazione = qt(pezzo.destinazione).translated(pixel.area.topLeft());
    if (!destinazione.isEmpty()) pennello.drawImage(destinazione, immagine, qt(pezzo.origine));
  }
}

void disegnaImmagine(QPainter& pennello, const QRect& area, const QImage& immagine) {
  const InPixel pixel(pennello, area);
  pennello.drawImage(pixel.area.topLeft(), immagine);
}

void disegnaFuoco(QPainter& pennello, const QRect& area, const QColor& colore) {
  const InPixel pixel(pennello, area);
  const qreal rapporto = pennello.device()->devicePixelRatioF();
  const int spessore = qMax(1, qRound(rapporto));
  const qreal mezzo = spessore / 2.0;
  const qreal raggio = 2 * rapporto;
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.setPen(QPen(colore, spessore));
  pennello.setBrush(Qt::NoBrush);
  pennello.drawRoundedRect(QRectF(pixel.area).adjusted(mezzo, mezzo, -mezzo, -mezzo), raggio, raggio);
}

}  // namespace vaticlo
