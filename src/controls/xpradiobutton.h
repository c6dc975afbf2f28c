#pragma once

#include <QColor>

#include "controls/controllo_disegnato.h"
#include "controls/stato_opzione.h"

namespace vaticlo {

/// The program's radio button. All those of a window are one group, whatever containers they stand in.
/// `Click` reaches the dialog while every value is still the old one; the toolkit's `toggled` follows each
/// change of `Value`. A handler of `Click` must not delete the control at once (deleteLater() is right).
class xpradiobutton : public ControlloDisegnato {
  Q_OBJECT
  Q_PROPERTY(bool Value READ Value WRITE setValue)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)

 public:
  explicit xpradiobutton(QWidget* parent = nullptr);
  explicit xpradiobutton(const QString& caption, QWidget* parent = nullptr);

  [[nodiscard]] bool Value() const { return stato_.Value(); }
  void setValue(bool value);
  [[nodiscard]] QColor BackColor() const;
  void setBackColor(const QColor& colore);
  [[nodiscard]] QColor ForeColor() const;
  void setForeColor(const QColor& colore);  // of the caption while enabled

  [[nodiscard]] AspettoOpzione aspetto() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  [[nodiscard]] StatoControllo& stato() override { return stato_; }
  void alClic() override;
  void nextCheckState() override {}  // a click changes the value by its own steps, after `Click`
  void paintEvent(QPaintEvent* evento) override;
  void keyPressEvent(QKeyEvent* tasto) override;

 private:
  [[nodiscard]] const QWidget* finestra() const;
  [[nodiscard]] std::vector<xpradiobutton*> gruppo() const;
  [[nodiscard]] std::vector<StatoOpzione*> opzioniDellaFinestra() const;
  [[nodiscard]] int lato() const;

  StatoOpzione stato_;
};

}  // namespace vaticlo
