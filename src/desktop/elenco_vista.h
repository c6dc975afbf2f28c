#pragma once

#include <QComboBox>
#include <QPointer>

#include "desktop/confine.h"
#include "forms/controlli.h"

class QListWidget;

namespace vaticlo {

/// A list with a text field, or without one. What is typed is never rewritten: the items that begin like it
/// are offered below the field, and taken only when one of them is clicked on or chosen by the arrows and
/// Enter. A text too long for the field is elided and stands whole in its tool tip.
class ElencoVista : public QComboBox {
 public:
  enum class Tipo { Modificabile, Chiuso };
  ElencoVista(Elenco& modello, Tipo tipo, const Confine& confine, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();
  void showPopup() override;

 protected:
  bool event(QEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* tasto) override;
  void wheelEvent(QWheelEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void hideEvent(QHideEvent* evento) override;
  void initStyleOption(QStyleOptionComboBox* opzioni) const override;

 private:
  void leggiVoci();
  void disegnaVoci();
  void scegli(int indice);
  void offri(const QString& digitato);
  [[nodiscard]] bool neiSuggerimenti(const QKeyEvent& tasto);
  /// An arrow or the wheel goes on from the item that has the text.
  template <class Passo>
  void scorri(Passo passo);

  Elenco& modello_;
  const Confine& confine_;
  QPointer<QListWidget> suggerimenti_;
};

}  // namespace vaticlo
