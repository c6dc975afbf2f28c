#pragma once

#include <QLineEdit>
#include <utility>

#include "forms/controlli.h"

namespace vaticlo {

/// A text field: masked digits, Enter as Tab, as its model asks for. Its content is selected when the focus
/// comes.
class CampoTestoVista : public QLineEdit {
 public:
  CampoTestoVista(CampoTesto& modello, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();

 protected:
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  CampoTesto& modello_;
  QString maschera_;
  std::pair<int, int> selezione_;  // where the focus left it, and how long
};

}  // namespace vaticlo
