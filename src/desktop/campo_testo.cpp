#include "desktop/campo_testo.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "controls/pittura.h"
#include "desktop/colori.h"

namespace vaticlo {

CampoTestoVista::CampoTestoVista(CampoTesto& modello, QWidget* padre) : QLineEdit(padre), modello_(modello) {
  setReadOnly(modello.Locked);
  setToolTip(QString::fromStdString(modello.esempio));
  setPlaceholderText(toolTip());
  if (modello.Locked) setFocusPolicy(Qt::ClickFocus);  // Tab does not stop at fields that only display
  connect(this, &QLineEdit::textEdited, this, [this] { modello_.Text(displayText().toStdString()); });
}

void CampoTestoVista::aggiorna() {
  const auto maschera = QString::fromStdString(modello_.Mask());
  if (maschera != maschera_) {
    maschera_ = maschera;
    // "##": as many digits at most, a blank where there is none.
    setInputMask(maschera.isEmpty()
                     ? QString()
                     : QString(maschera).replace(QLatin1Char('#'), QLatin1Char('0')) + QStringLiteral("; "));
  }
  const auto testo = QString::fromStdString(modello_.Text());
  if (displayText() != testo) {
    const bool intero = hasFocus() && selectedText() == text();  // an empty one too
    setText(testo);
    if (intero) selectAll();
  }
  setEnabled(modello_.Enabled());
  setVisible(modello_.Visible());

  auto colori = QPalette();
  if (const int colore = modello_.BackColor(); colore != kSfondoNormale) {
    // Red stands in the low byte. A field with a colour of its own needs dark digits on a dark desktop too.
    colori.setColor(QPalette::Base, QColor(colore & 0xFF, colore >> 8 & 0xFF, colore >> 16 & 0xFF));
    colori.setColor(QPalette::Text, Qt::black);
  }
  const bool rilievo = !modello_.Rilievo().empty();
  if (rilievo) colori.setColor(QPalette::Text, coloreDi(Tono::Vincita, colori.color(QPalette::Base)));
  if (colori.color(QPalette::Base) != palette().color(QPalette::Base) ||
      colori.color(QPalette::Text) != palette().color(QPalette::Text))
    setPalette(colori);
  if (auto carattere = font(); carattere.bold() != rilievo) {
    carattere.setBold(rilievo);
    setFont(carattere);
  }
  setToolTip(QString::fromStdString(rilievo ? modello_.Rilievo() : modello_.esempio));
  setAccessibleDescription(QString::fromStdString(modello_.Rilievo()));
  update();
}

void CampoTestoVista::paintEvent(QPaintEvent* evento) {
  QLineEdit::paintEvent(evento);
  if (modello_.Rilievo().empty()) return;
  QPainter pittore(this);
  const auto verde = coloreDi(Tono::Vincita, palette().color(QPalette::Base));
  disegnaFuoco(pittore, rect(), verde);
  disegnaFuoco(pittore, rect().adjusted(1, 1, -1, -1), verde);
}

void CampoTestoVista::focusInEvent(QFocusEvent* evento) {
  QLineEdit::focusInEvent(evento);
  if (evento->reason() == Qt::ActiveWindowFocusReason && selezione_.second > 0)
    setSelection(selezione_.first, selezione_.second);  // the window was away, the field was not left
  else if (evento->reason() != Qt::ActiveWindowFocusReason && evento->reason() != Qt::MouseFocusReason &&
           !isReadOnly())
    selectAll();
}

void CampoTestoVista::focusOutEvent(QFocusEvent* evento) {
  selezione_ = {selectionStart(), selectionLength()};
  QLineEdit::focusOutEvent(evento);
}

void CampoTestoVista::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && modello_.InvioComeTab) {
    focusNextChild();
    return;
  }
  QLineEdit::keyPressEvent(evento);
}

void CampoTestoVista::mousePressEvent(QMouseEvent* evento) {
  QLineEdit::mousePressEvent(evento);
  // The blanks of the mask after the digits are no place to type at.
  if (hasSelectedText() || maschera_.isEmpty()) return;
  auto cifre = displayText();
  while (cifre.endsWith(QLatin1Char(' '))) cifre.chop(1);
  if (cursorPosition() > cifre.size()) setCursorPosition(static_cast<int>(cifre.size()));
}

}  // namespace vaticlo
