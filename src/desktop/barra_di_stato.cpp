#include "desktop/barra_di_stato.h"

#include <QLabel>
#include <algorithm>

namespace vaticlo {

namespace {

constexpr int kMargine = 10;  // around each of the texts
constexpr int kMinimo = 90;   // a text that is cut more says nothing

void mostra(QLabel& etichetta, const QString& testo, Qt::TextElideMode taglio, int larghezza) {
  etichetta.setText(etichetta.fontMetrics().elidedText(testo, taglio, larghezza));
  etichetta.setVisible(!testo.isEmpty() && larghezza >= kMinimo);
}

}  // namespace

BarraDiStato::BarraDiStato(const QString& cartella, QWidget* padre)
    : QStatusBar(padre),
      cartella_(cartella),
      avvertenza_(etichetta(QStringLiteral("statoAvviso"))),
      dove_(etichetta(QStringLiteral("statoCartella"))),
      archivio_(etichetta(QStringLiteral("statoArchivio"))) {
  setObjectName(QStringLiteral("stato"));
  setAccessibleName(QStringLiteral("Barra di stato"));
  auto carattere = avvertenza_->font();
  carattere.setBold(true);
  avvertenza_->setFont(carattere);
  dove_->setAccessibleName(QStringLiteral("Cartella del programma: ") + cartella);
  dove_->setToolTip(dove_->accessibleName());
  connect(this, &QStatusBar::messageChanged, this, [this](const QString& messaggio) {
    setAccessibleDescription(messaggio);
    setToolTip(messaggio);
    disponi();
  });
}

QLabel* BarraDiStato::etichetta(const QString& nome) {
  auto* etichetta = new QLabel(this);
  etichetta->setObjectName(nome);
  etichetta->setTextFormat(Qt::PlainText);
  addPermanentWidget(etichetta);
  return etichetta;
}

void BarraDiStato::archivio(const QString& testo) {
  archivio_->setText(testo);
  archivio_->setAccessibleName(QStringLiteral("Archivio: ") + testo);
  disponi();
}

void BarraDiStato::avvisi(const std::vector<Avviso>& avvisi) {
  if (avvisi == avvisi_) return;
  avvisi_ = avvisi;
  QStringList testi, spiegazioni;
  for (const auto& avviso : avvisi) {
    testi << QString::fromStdString(avviso.testo);
    spiegazioni << QString::fromStdString(avviso.spiegazione);
  }
  avviso_ = testi.join(QStringLiteral(" · "));
  avvertenza_->setToolTip(spiegazioni.join(QLatin1Char('\n')));
  avvertenza_->setAccessibleName(avviso_);
  avvertenza_->setAccessibleDescription(avvertenza_->toolTip());
  disponi();
}

void BarraDiStato::resizeEvent(QResizeEvent* evento) {
  QStatusBar::resizeEvent(evento);
  disponi();
}

// Nothing of it widens the window. Where there is no room for all, the message and the archive come first,
// then what has to be known, then the folder.
void BarraDiStato::disponi() {
  const auto larghezza = [](const QLabel& etichetta, const QString& testo) {
    return testo.isEmpty() ? 0 : etichetta.fontMetrics().horizontalAdvance(testo) + kMargine;
  };
  int libero =
      width() - larghezza(*archivio_, archivio_->text()) - larghezza(*dove_, currentMessage()) - 4 * kMargine;
  const int avviso = std::min(larghezza(*avvertenza_, avviso_), std::max(libero, 2 * kMinimo));
  mostra(*avvertenza_, avviso_, Qt::ElideRight, avviso);
  libero -= avviso;
  mostra(*dove_, cartella_, Qt::ElideMiddle, std::min(libero, width() / 3));
}

}  // namespace vaticlo
