#include "desktop/aspetto.h"

#include <QApplication>
#include <QPalette>

#include "desktop/colori.h"

namespace vaticlo {

namespace {

QPalette tavolozzaScura() {
  const QColor finestra(62, 62, 62), foglio(34, 34, 34), testo(240, 240, 240), scelta(42, 118, 172);
  QPalette scura(finestra, finestra);
  for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                           QPalette::HighlightedText})
    scura.setColor(ruolo, testo);
  scura.setColor(QPalette::Base, foglio);
  scura.setColor(QPalette::AlternateBase, QColor(43, 43, 43));
  scura.setColor(QPalette::ToolTipBase, finestra);
  scura.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
  scura.setColor(QPalette::Highlight, scelta);
  scura.setColor(QPalette::Link, QColor(110, 180, 240));
  scura.setColor(QPalette::LinkVisited, QColor(190, 150, 230));
  for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    scura.setColor(QPalette::Disabled, ruolo, QColor(130, 130, 130));
  scura.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 80, 80));
  return scura;
}

}  // namespace

Aspetto::Aspetto() {
  chiedi();
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState stato) {
    if (stato == Qt::ApplicationActive) chiedi();
  });
}

void Aspetto::vesti(bool diScuro) {
  if (diScuro == nostra_ || (diScuro && scuro(QApplication::palette().color(QPalette::Window)))) return;
  nostra_ = diScuro;
  QApplication::setPalette(diScuro ? tavolozzaScura() : QPalette());
}

}  // namespace vaticlo
