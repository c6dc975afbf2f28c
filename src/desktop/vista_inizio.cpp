#include "desktop/vista_inizio.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/immagini.h"
#include "dialogs/frm_principale.h"
#include "dialogs/pagina_iniziale.h"

namespace vaticlo {

namespace {

constexpr int kMargine = 28, kTraSezioni = 14, kLatoSegno = 48;
constexpr double kTitolo = 1.5, kSezione = 1.1;  // times the size of a text

QString qt(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<int>(testo.size())); }

QLabel* etichetta(const std::string& testo, double grandezza = 1, bool grassetto = false) {
  auto* etichetta = new QLabel(qt(testo));
  etichetta->setTextFormat(Qt::PlainText);
  etichetta->setWordWrap(true);
  auto carattere = etichetta->font();
  carattere.setPointSizeF(carattere.pointSizeF() * grandezza);
  carattere.setBold(grassetto);
  etichetta->setFont(carattere);
  return etichetta;
}

}  // namespace

VistaInizio::VistaInizio(QWidget* area, frmPrincipale& principale, const Confine& confine)
    : QScrollArea(area), principale_(principale), confine_(confine) {
  setObjectName(QStringLiteral("inizio"));
  setAccessibleName(QStringLiteral("Pagina iniziale"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  area->installEventFilter(this);
  setGeometry(area->rect());
  lower();
}

bool VistaInizio::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QScrollArea::eventFilter(oggetto, evento);
}

void VistaInizio::mostra(const PaginaIniziale& pagina) {
  const auto* conFuoco = focusWidget();
  const auto nomeConFuoco = conFuoco != nullptr && conFuoco->hasFocus() ? conFuoco->objectName() : QString();
  auto* foglio = new QWidget;
  foglio->setAutoFillBackground(true);
  foglio->setBackgroundRole(QPalette::Window);
  auto* colonna = new QVBoxLayout(foglio);
  colonna->setContentsMargins(kMargine, kMargine, kMargine, kMargine);
  colonna->setSpacing(4);

  auto* testata = new QHBoxLayout;
  auto* segno = new QLabel;
  segno->setPixmap(
      immagine(QStringLiteral("vaticlo")).pixmap(QSize(kLatoSegno, kLatoSegno), devicePixelRatioF()));
  testata->addWidget(segno, 0, Qt::AlignTop);
  testata->addSpacing(12);
  auto* archivio = etichetta(pagina.archivio, kTitolo, true);
  archivio->setObjectName(QStringLiteral("inizioArchivio"));
  testata->addWidget(archivio, 1);
  colonna->addLayout(testata);

  for (const auto& sezione : pagina.sezioni) {
    colonna->addSpacing(kTraSezioni);
    colonna->addWidget(etichetta(sezione.titolo, kSezione, true));
    for (const auto& riga : sezione.righe) colonna->addWidget(etichetta(riga));
  }

  colonna->addSpacing(kTraSezioni);
  auto* pulsanti = new QHBoxLayout;
  for (const auto& uno : pulsantiIniziali())
    if (!uno.soloSeVuoto || pagina.archivioVuoto) pulsanti->addWidget(pulsante(uno));
  pulsanti->addStretch(1);
  colonna->addLayout(pulsanti);
  colonna->addStretch(1);
  setWidget(foglio);
  tastiAccesso(conTasti_);
  if (auto* ancora = nomeConFuoco.isEmpty() ? nullptr : findChild<QWidget*>(nomeConFuoco)) ancora->setFocus();
}

void VistaInizio::tastiAccesso(bool accesi) {
  conTasti_ = accesi;
  for (auto* bottone : findChildren<QPushButton*>())
    bottone->setShortcut(accesi ? QKeySequence::mnemonic(bottone->text()) : QKeySequence());
}

QWidget* VistaInizio::pulsante(const PulsanteIniziale& pulsante) {
  auto* bottone = new QPushButton(qt(pulsante.caption));
  bottone->setObjectName(qt(pulsante.nome));
  // Queued: what it does may renew this page, and the button with it.
  connect(
      bottone, &QPushButton::clicked, this,
      [this, azione = pulsante.azione] { confine_.esegui([&] { azione(principale_); }); },
      Qt::QueuedConnection);
  return bottone;
}

}  // namespace vaticlo
