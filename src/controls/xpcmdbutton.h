#pragma once

#include "controls/controllo_disegnato.h"
#include "controls/stato_pulsante.h"

namespace vaticlo {

/// The program's push button. Without a caption it shows its own name.
class xpcmdbutton : public ControlloDisegnato {
  Q_OBJECT
  Q_PROPERTY(int State READ State WRITE setState)

 public:
  explicit xpcmdbutton(QWidget* parent = nullptr);
  explicit xpcmdbutton(const QString& caption, QWidget* parent = nullptr);

  [[nodiscard]] int State() const { return stato_.State(); }
  void setState(int state);  // see StatoPulsante
  void Aggiorna();           // back to the resting look

  [[nodiscard]] AspettoPulsante aspetto() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  [[nodiscard]] StatoControllo& stato() override { return stato_; }
  void paintEvent(QPaintEvent* evento) override;

 private:
  StatoPulsante stato_;
  QString nomeMostrato_;
};

}  // namespace vaticlo
