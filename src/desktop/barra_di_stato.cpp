#include "desktop/barra_di_stato.h"

#include <QLabel>

namespace vaticlo {

BarraDiStato::BarraDiStato(const QString& cartella, QWidget* padre)
    : QStatusBar(padre), cartella_(cartella), dove_(new QLabel(this)), archivio_(new QLabel(this)) {
  setObjectName(QStringLiteral("stato"));
  dove_->setObjectName(QStringLiteral("statoCartella"));
  dove_->setTextFormat(Qt::PlainText);
  dove_->setAccessibleName(QStringLiteral("Cartella del programma"));
  dove_->setToolTip(QStringLiteral("La cartella del programma: ") + cartella);
  archivio_->setObjectName(QStringLiteral("statoArchivio"));
  archivio_->setTextFormat(Qt::PlainText);
  archivio_->setAccessibleName(QStringLiteral("Archivio"));
  addPermanentWidget(dove_);
  addPermanentWidget(archivio_);
}

void BarraDiStato::archivio(const QString& testo) {
  archivio_->setText(testo);
  accorcia();
}

void BarraDiStato::resizeEvent(QResizeEvent* evento) {
  QStatusBar::resizeEvent(evento);
  accorcia();
}

// A long path never widens the window.
void BarraDiStato::accorcia() {
  dove_->setText(dove_->fontMetrics().elidedText(cartella_, Qt::ElideMiddle, width() / 3));
}

}  // namespace vaticlo
