#include "desktop/campo_testo.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

namespace vaticlo {

namespace {

bool spostamentoNellaFinestra(Qt::FocusReason motivo) {
  return motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason || motivo == Qt::MouseFocusReason ||
         motivo == Qt::ShortcutFocusReason || motivo == Qt::OtherFocusReason;
}

}  // namespace

void Validatore::lasciato(CampoTestoVista* campo) {
  pendente_ = campo;
  QTimer::singleShot(0, this, [this] { ammette(); });
}

bool Validatore::ammette() {
  const QPointer<CampoTestoVista> campo = std::exchange(pendente_, nullptr);
  if (!campo || !campo->isVisible()) return true;
  // The toolkit may have led the focus through the window's frame on its way to a button that needs none.
  const auto* ora = QApplication::focusWidget();
  if (ora != nullptr && ora->property(kSenzaValidazione).toBool()) return true;
  bool trattiene = false;
  confine_.esegui([&] { trattiene = campo->modello().Validate(); });
  if (!trattiene || !campo) return true;
  rientro_ = true;
  campo->setFocus(Qt::OtherFocusReason);
  campo->selectAll();
  rientro_ = false;
  return false;
}

CampoTestoVista::CampoTestoVista(CampoTesto& modello, Validatore& validatore, QWidget* padre)
    : QLineEdit(padre), modello_(modello), validatore_(validatore) {
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
  if (displayText() != testo) setText(testo);
  setEnabled(modello_.Enabled());
  setVisible(modello_.Visible());

  auto colori = QPalette();
  if (const int colore = modello_.BackColor(); colore != kSfondoNormale) {
    // Red stands in the low byte. A field with a colour of its own needs dark digits on a dark desktop too.
    colori.setColor(QPalette::Base, QColor(colore & 0xFF, colore >> 8 & 0xFF, colore >> 16 & 0xFF));
    colori.setColor(QPalette::Text, Qt::black);
  }
  if (colori.color(QPalette::Base) != palette().color(QPalette::Base)) setPalette(colori);
}

void CampoTestoVista::focusInEvent(QFocusEvent* evento) {
  QLineEdit::focusInEvent(evento);
  if (evento->reason() != Qt::MouseFocusReason && !isReadOnly()) selectAll();
}

void CampoTestoVista::focusOutEvent(QFocusEvent* evento) {
  QLineEdit::focusOutEvent(evento);
  if (!modello_.Validate || validatore_.rientro() || !spostamentoNellaFinestra(evento->reason())) return;
  const auto* verso = QApplication::focusWidget();
  if (verso == nullptr || verso->window() != window() || verso->property(kSenzaValidazione).toBool()) return;
  validatore_.lasciato(this);
}

void CampoTestoVista::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && modello_.InvioComeTab) {
    focusNextChild();
    return;
  }
  QLineEdit::keyPressEvent(evento);
}

}  // namespace vaticlo
