#pragma once

#include <QByteArray>
#include <QWidget>
#include <cstddef>
#include <optional>

#include "desktop/tela_grafico.h"
#include "forms/grafico.h"

namespace vaticlo {

/// Shows a picture of figures. What stands at a place is read by pointing at it, or with the arrows, Home and
/// End; the context menu copies the picture or saves it, always in dark on white.
class GraficoVista : public QWidget {
 public:
  GraficoVista(Grafico& modello, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();
  /// The picture as the bytes of a file, dark on white.
  [[nodiscard]] QByteArray png() const;
  [[nodiscard]] QByteArray pdf() const;

  [[nodiscard]] QSize minimumSizeHint() const override { return {260, 160}; }
  [[nodiscard]] QSize sizeHint() const override { return {480, 280}; }

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void keyPressEvent(QKeyEvent* tasto) override;
  void leaveEvent(QEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void ridisegna();
  void leggi(std::optional<std::size_t> posto);
  /// Does something with the picture as it goes to paper.
  template <class Fai>
  void perCarta(Fai fai) const;

  Grafico& modello_;
  TelaGrafico tela_;
  std::optional<std::size_t> letto_;
};

}  // namespace vaticlo
