#pragma once

#include <QLineEdit>
#include <QPointer>

#include "desktop/confine.h"
#include "forms/controlli.h"

namespace vaticlo {

class CampoTestoVista;

/// Lets the field that the focus leaves validate itself, once for a window. The validation runs when the
/// toolkit has finished moving the focus, or before that when a button is pressed meanwhile; a field that
/// holds the focus back gets it again, and the press is lost.
class Validatore : public QObject {
 public:
  Validatore(QObject* padre, const Confine& confine) : QObject(padre), confine_(confine) {}

  void lasciato(CampoTestoVista* campo);
  /// True when no field holds the focus back.
  bool ammette();
  [[nodiscard]] bool rientro() const { return rientro_; }

 private:
  const Confine& confine_;
  QPointer<CampoTestoVista> pendente_;
  bool rientro_ = false;
};

/// A text field: masked digits, Enter as Tab, validation on leaving, as its model asks for.
class CampoTestoVista : public QLineEdit {
 public:
  CampoTestoVista(CampoTesto& modello, Validatore& validatore, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();
  [[nodiscard]] CampoTesto& modello() { return modello_; }

 protected:
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  CampoTesto& modello_;
  Validatore& validatore_;
  QString maschera_;
};

/// Buttons that bear this property are reached without a validation.
inline constexpr const char* kSenzaValidazione = "senzaValidazione";

}  // namespace vaticlo
