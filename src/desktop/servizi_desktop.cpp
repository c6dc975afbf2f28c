#include "desktop/servizi_desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <QVBoxLayout>
#include <atomic>

#include "desktop/carta.h"
#include "desktop/scelta_da_elenco.h"
#include "platform/orologio.h"
#include "platform/percorso.h"
#include "platform/scaricamento.h"

namespace vaticlo {

namespace {

constexpr int kAttesaSuggerimento = 250, kDurataSuggerimento = 10'000;  // milliseconds
constexpr int kAttesaAvanzamento = 300;  // milliseconds; what is done sooner shows no box
constexpr int kPassoAvanzamento = 100;   // milliseconds
constexpr int kDurataAvviso = 30'000;    // milliseconds, in the status bar

QString qt(const std::string& testo) { return QString::fromStdString(testo); }

// A hint below what has the focus, where the user has just pressed; shown at once it would go with the box
// that is being closed.
void suggerisci(const QString& testo) {
  QTimer::singleShot(kAttesaSuggerimento, qApp, [testo] {
    const auto* dove = QApplication::focusWidget();
    const auto punto = dove != nullptr ? dove->mapToGlobal(dove->rect().bottomLeft()) : QCursor::pos();
    QToolTip::showText(punto, testo, nullptr, {}, kDurataSuggerimento);
  });
}

}  // namespace

ServiziDesktop::ServiziDesktop() = default;

ServiziDesktop::~ServiziDesktop() = default;

Risposta ServiziDesktop::mostra(const Messaggio& messaggio) {
  QMessageBox box(padre_);
  box.setWindowTitle(qt(messaggio.titolo));
  box.setTextFormat(Qt::PlainText);
  box.setText(qt(messaggio.testo));
  if (messaggio.icona == Icona::Esclamazione) box.setIcon(QMessageBox::Warning);
  if (messaggio.genere == Genere::Domanda) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(messaggio.predefinita == Risposta::Si ? QMessageBox::Yes : QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Risposta::Si : Risposta::No;
  }
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  if (messaggio.genere == Genere::Notizia) fatto(messaggio.testo.substr(0, messaggio.testo.find('\n')));
  return Risposta::Ok;
}

std::string ServiziDesktop::chiedi(const std::string& testo, const std::string& titolo) {
  QDialog box(padre_);
  box.setWindowTitle(qt(titolo));
  auto* domanda = new QLabel(qt(testo), &box);
  domanda->setTextFormat(Qt::PlainText);
  domanda->setWordWrap(true);
  domanda->setMinimumWidth(domanda->fontMetrics().averageCharWidth() * 64);
  auto* risposta = new QLineEdit(&box);
  risposta->setObjectName(QStringLiteral("risposta"));
  domanda->setBuddy(risposta);
  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
  QObject::connect(pulsanti, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(pulsanti, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  auto* colonna = new QVBoxLayout(&box);
  colonna->setSpacing(12);
  colonna->addWidget(domanda);
  colonna->addWidget(risposta);
  colonna->addWidget(pulsanti);
  risposta->setFocus();
  return box.exec() == QDialog::Accepted ? risposta->text().toStdString() : std::string();
}

std::string ServiziDesktop::scegli(const std::string& testo, const std::string& titolo,
                                   const std::vector<std::string>& voci) {
  QStringList nomi;
  for (const auto& voce : voci) nomi << qt(voce);
  SceltaDaElenco box(qt(testo), qt(titolo), nomi, padre_);
  return box.exec() == QDialog::Accepted ? box.scelta().toStdString() : std::string();
}

std::filesystem::path ServiziDesktop::scegliFile(const std::string& titolo) {
  const auto file = QFileDialog::getOpenFileName(
      padre_, qt(titolo), QDir::homePath(),
      QStringLiteral("File delle estrazioni (*.txt *.zip *.gz);;Tutti i file (*)"));
  return percorsoDa(file.toStdString());
}

void ServiziDesktop::avanzamento(const std::string& lavoro, int percento) {
  if (percento >= 100) {
    lavoro_.reset();
    return;
  }
  if (!lavoro_) {
    lavoro_ = std::make_unique<QProgressDialog>(qt(lavoro), QString(), 0, 100, padre_);
    lavoro_->setWindowTitle(QApplication::applicationName());
    lavoro_->setWindowModality(Qt::ApplicationModal);
    lavoro_->setMinimumDuration(kAttesaAvanzamento);
  }
  lavoro_->setValue(percento);
}

void ServiziDesktop::stampa(const std::string& testo) {
  const auto predefinita = QPrinterInfo::defaultPrinter();
  const auto senza = [this](const QString& perche, const std::string& inBreve) {
    suggerisci(
        perche +
        QStringLiteral(": non è stato stampato nulla.\n"
                       "Con il tasto destro sul testo: \"Salva come PDF...\" o \"Salva come testo...\"."));
    fatto(inBreve + ": niente è stato stampato");
  };
  if (predefinita.isNull())
    return senza(QStringLiteral("Non c'è una stampante predefinita"), "Nessuna stampante");
  QPrinter stampante(predefinita, QPrinter::HighResolution);
  stampante.setDocName(QStringLiteral("Vaticlo"));
  stampaSu(stampante, qt(testo));
  if (stampante.printerState() == QPrinter::Error)
    return senza(QStringLiteral("La stampa non è cominciata"), "La stampa non è cominciata");
  fatto("Mandato alla stampante " + predefinita.printerName().toStdString());
}

bool ServiziDesktop::scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) {
  bool riuscito = false;
  inDisparte([&](const auto& limiti) { riuscito = scaricaInFile(indirizzo, destinazione, limiti); });
  return riuscito;
}

Scaricato ServiziDesktop::preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) {
  Scaricato scaricato;
  inDisparte([&](const auto& limiti) { scaricato = scaricaInMemoria(indirizzo, seModificatoDopo, limiti); });
  return scaricato;
}

// The transfer has a thread of its own, so that the screen stays painted; the box over the windows keeps
// every other command away until the end.
void ServiziDesktop::inDisparte(const std::function<void(const LimitiScaricamento&)>& scarica) {
  std::atomic<bool> fermato = false;
  std::atomic<int> percento = 0;
  LimitiScaricamento limiti;
  limiti.interrotto = [&fermato] { return fermato.load(); };
  limiti.avanzamento = [&percento](int fatto) { percento = fatto; };
  const std::unique_ptr<QThread> lavoro(QThread::create([&] { scarica(limiti); }));
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QEventLoop attesa;
  QObject::connect(lavoro.get(), &QThread::finished, &attesa, &QEventLoop::quit);
  QTimer::singleShot(kAttesaAvanzamento, &attesa, &QEventLoop::quit);
  lavoro->start();
  attesa.exec(QEventLoop::ExcludeUserInputEvents);
  if (!lavoro->isFinished()) {
    QProgressDialog box(QStringLiteral("Scaricamento in corso... Esc lo interrompe."),
                        QStringLiteral("&Interrompi"), 0, 0, padre_);
    box.setWindowTitle(QApplication::applicationName());
    box.setWindowModality(Qt::ApplicationModal);
    box.setMinimumDuration(0);
    box.setAutoClose(false);
    box.setAutoReset(false);
    QObject::connect(&box, &QProgressDialog::canceled, &box, [&fermato] { fermato = true; });
    QObject::connect(lavoro.get(), &QThread::finished, &box, &QDialog::accept);
    QTimer passo;
    QObject::connect(&passo, &QTimer::timeout, &box, [&box, &percento] {
      if (percento == 0) return;  // until then the bar only shows that something is going on
      box.setMaximum(100);
      box.setValue(percento);
    });
    passo.start(kPassoAvanzamento);
    if (!lavoro->isFinished()) box.exec();
    fermato = true;
  }
  lavoro->wait();
  QApplication::restoreOverrideCursor();
}

void ServiziDesktop::segnala(const std::string& testo) {
  avviso_ = qt(testo);
  if (auto* finestra = qobject_cast<QMainWindow*>(padre_))
    finestra->statusBar()->showMessage(avviso_, kDurataAvviso);
}

// What was said in passing while it was done stays to be read.
void ServiziDesktop::fatto(const std::string& testo) {
  auto* finestra = qobject_cast<QMainWindow*>(padre_);
  if (finestra == nullptr) return;
  auto* barra = finestra->statusBar();
  const bool insieme = !avviso_.isEmpty() && barra->currentMessage() == avviso_;
  barra->showMessage(insieme ? qt(testo) + QStringLiteral(" · ") + avviso_ : qt(testo));
  avviso_.clear();
}

void ServiziDesktop::apriPagina(const std::string& indirizzo) {
  QDesktopServices::openUrl(QUrl(qt(indirizzo)));
}

std::chrono::year_month_day ServiziDesktop::oggi() const { return dataLocale(); }

void ServiziDesktop::eventiInAttesa() { QApplication::processEvents(); }

void ServiziDesktop::ridisegna() { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace vaticlo
