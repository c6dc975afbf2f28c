#pragma once

#include <QColor>
#include <QImage>
#include <functional>
#include <map>

class QPainter;
class QRect;

namespace vaticlo {

/// The pictures of one control by their index, painted when first shown and again for another screen.
class SerieImmagini {
 public:
  using Dipingi = std::function<QImage(qreal rapporto)>;

  [[nodiscard]] const QImage& prendi(int indice, qreal rapporto, const Dipingi& dipingi);
  void dimentica() { immagini_.clear(); }

 private:
  std::map<int, QImage> immagini_;
  qreal rapporto_ = 1;
};

/// Stretches a picture of kMisuraImmagine at the device pixel ratio into the area, nine pieces in whole
/// device pixels, so that edges stay sharp at 125 % too.
void disegnaNovePezzi(QPainter& pennello, const QRect& area, const QImage& immagine);

/// Draws a picture pixel by pixel at the device pixel nearest to the area's top left.
void disegnaImmagine(QPainter& pennello, const QRect& area, const QImage& immagine);

/// The mark of the focus: a thin ring along the inside of the area.
void disegnaFuoco(QPainter& pennello, const QRect& area, const QColor& colore);

}  // namespace vaticlo
