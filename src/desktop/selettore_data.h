#pragma once

#include <QDate>
#include <QLineEdit>

#include "desktop/confine.h"
#include "forms/controlli.h"

namespace vaticlo {

/// A date picker: a field in which a date is typed as a whole, with a calendar that opens below it. What is
/// typed stays as it is until the focus leaves or Enter is pressed; the arrows and the wheel step the part of
/// the date at the caret, or the day.
class SelettoreDataVista : public QLineEdit {
 public:
  SelettoreDataVista(SelettoreData& modello, const Confine& confine, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();
  /// Reads what was typed. True when it is refused: the date of before stands again.
  [[nodiscard]] bool trattiene();

 protected:
  void focusInEvent(QFocusEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;

 private:
  void scegli(const QDate& giorno);
  void sposta(int passi);
  void apriCalendario();

  SelettoreData& modello_;
  const Confine& confine_;
  int giro_ = 0;  // of the wheel since its last step, in eighths of a degree
};

}  // namespace vaticlo
