#pragma once

#include <QAbstractButton>
#include <QTimer>

#include "controls/pittura.h"
#include "controls/stato_controllo.h"

namespace vaticlo {

/// What the self-drawn button and radio button share: the toolkit's mouse, timer and access key lead to the
/// state that says which picture is shown. Focus, the space bar and access keys are those of QAbstractButton.
class ControlloDisegnato : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

 public:
  [[nodiscard]] QString Caption() const { return text(); }
  void setCaption(const QString& caption) { setText(caption); }

  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  void Click();
  void KeyDown(int tasto, Qt::KeyboardModifiers modificatori);
  void KeyPress(const QString& carattere);
  void KeyUp(int tasto, Qt::KeyboardModifiers modificatori);
  /// Points are in the control's coordinates. Moves are reported inside the control only.
  void MouseDown(Qt::MouseButton pulsante, Qt::KeyboardModifiers modificatori, QPoint dove);
  void MouseMove(Qt::MouseButtons pulsanti, Qt::KeyboardModifiers modificatori, QPoint dove);
  void MouseUp(Qt::MouseButton pulsante, Qt::KeyboardModifiers modificatori, QPoint dove);
  void MouseOut();

 protected:
  explicit ControlloDisegnato(QWidget* parent);

  [[nodiscard]] virtual StatoControllo& stato() = 0;
  virtual void alClic() { Q_EMIT Click(); }

  void ridisegna();
  [[nodiscard]] QSize misuraDidascalia() const;
  void scriviDidascalia(QPainter& pennello, const QRect& area, int allineamento) const;
  [[nodiscard]] SerieImmagini& immagini() { return immagini_; }

  bool event(QEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* tasto) override;
  void keyReleaseEvent(QKeyEvent* tasto) override;
  void changeEvent(QEvent* evento) override;

 private:
  void guardaIlPuntatore();

  QTimer Timer1_;
  SerieImmagini immagini_;
};

}  // namespace vaticlo
