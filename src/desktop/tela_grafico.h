#pragma once

#include <QImage>
#include <QPoint>
#include <cstddef>
#include <optional>

#include "forms/grafico.h"

class QCustomPlot;
class QFont;
class QPagedPaintDevice;
class QPalette;
class QSize;
class QWidget;

namespace vaticlo {

/// What a picture is painted on. Nobody else knows the charting library.
class TelaGrafico {
 public:
  /// The plot belongs to its parent.
  explicit TelaGrafico(QWidget& padre);

  [[nodiscard]] QWidget& widget() const;

  void disegna(const Disegno& disegno, const QPalette& colori, const QFont& carattere);
  /// The place nearest to a point of the widget; none outside the axes.
  [[nodiscard]] std::optional<std::size_t> postoSotto(const QPoint& punto) const;
  /// The middle of a place, in the widget.
  [[nodiscard]] QPoint puntoDi(std::size_t posto) const;
  /// Draws the line of whoever reads at that place, or none.
  void indica(std::optional<std::size_t> posto);

  /// The picture in another size, in pixels at 96 dpi.
  [[nodiscard]] QImage immagine(const QSize& misura, double scala) const;
  /// The same as vectors.
  void stampaSu(QPagedPaintDevice& carta, const QSize& misura) const;

 private:
  QCustomPlot* plot_;
  std::vector<double> posti_;
};

}  // namespace vaticlo
