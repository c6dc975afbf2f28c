#pragma once

#include <QColor>
#include <QWidget>

#include "controls/pittura.h"

namespace vaticlo {

/// The program's group frame. Its contents margins keep a layout inside the frame and below the caption.
class xpgroupbox : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)

 public:
  explicit xpgroupbox(QWidget* parent = nullptr);
  explicit xpgroupbox(const QString& caption, QWidget* parent = nullptr);

  [[nodiscard]] QString Caption() const { return caption_; }
  void setCaption(const QString& caption);

  /// Yellow, the value it has from the start, stands for "none chosen" and lets the window's colour through.
  [[nodiscard]] QColor BackColor() const { return fondo_; }
  void setBackColor(const QColor& colore);

  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Click();
  void DblClick();
  /// Points are in the control's coordinates.
  void MouseDown(Qt::MouseButton pulsante, Qt::KeyboardModifiers modificatori, QPoint dove);
  void MouseMove(Qt::MouseButtons pulsanti, Qt::KeyboardModifiers modificatori, QPoint dove);
  void MouseUp(Qt::MouseButton pulsante, Qt::KeyboardModifiers modificatori, QPoint dove);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void changeEvent(QEvent* evento) override;

 private:
  [[nodiscard]] QSize misuraDidascalia() const;
  void disponi();

  QString caption_;
  QColor fondo_{255, 255, 0};
  SerieImmagini immagini_;
  bool doppio_ = false;  // the press under way is the second of a double click
};

}  // namespace vaticlo
