#include <QAbstractButton>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>

#include "desktop/applicazione.h"
#include "desktop/aspetto.h"
#include "desktop/colori.h"
#include "desktop/servizi_desktop.h"
#include "gui/finestra_prova.h"
#include "sostegno/server_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// Somebody in front of the screen, who does that to every box that comes up.
class Qualcuno {
 public:
  explicit Qualcuno(const std::function<void(QDialog&)>& fai) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [fai] {
      if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) fai(*box);
    });
    timer_.start(10);
  }

 private:
  QTimer timer_;
};

/// The program of its own that a failure ends: writes what the box says.
int finisci() {
  const Qualcuno qualcuno([](QDialog& box) {
    const auto& messaggio = dynamic_cast<QMessageBox&>(box);
    std::puts(qPrintable(messaggio.text()));
    std::fflush(stdout);
    messaggio.buttons().at(0)->click();
  });
  Confine().nella("Vaticla").esegui([] { throw RuntimeFailure(Errore::Indice); });
  return 0;
}

const Messaggio kNotizia{"<b>testo</b>", "titolo"};
const Messaggio kRifiuto{"<b>testo</b>", "titolo", Genere::Rifiuto, Icona::Esclamazione};
const Messaggio kDomanda{"<b>testo</b>", "titolo", Genere::Domanda};
const Messaggio kPericolo{"<b>testo</b>", "titolo", Genere::Domanda, Icona::Nessuna, Risposta::No};

}  // namespace

class ServiziGuiTest : public QObject {
  Q_OBJECT

 public slots:
  void pagina(const QUrl& indirizzo) { pagine_ << indirizzo.toString(); }

 private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void darkColoursAreReadableAndGoAgain() {
    const auto prima = QApplication::palette().color(QPalette::Window);
    Aspetto aspetto;
    aspetto.vesti(true);
    const auto ora = QApplication::palette();
    QVERIFY(scuro(ora.color(QPalette::Window)) && scuro(ora.color(QPalette::Base)));
    QVERIFY(!scuro(ora.color(QPalette::WindowText)) && !scuro(ora.color(QPalette::Text)));
    aspetto.vesti(false);
    QCOMPARE(QApplication::palette().color(QPalette::Window), prima);
  }

  void aNameOfManyIsFoundByAPartOfIt_data() {
    QTest::addColumn<QString>("digitato");
    QTest::addColumn<QList<int>>("tasti");
    QTest::addColumn<QString>("scelto");
    QTest::newRow("part") << "TTO" << QList<int>{Qt::Key_Return} << "Otto";
    QTest::newRow("next one") << "o" << QList<int>{Qt::Key_Down, Qt::Key_Return} << "Nove";
    QTest::newRow("back again") << "o" << QList<int>{Qt::Key_Down, Qt::Key_Up, Qt::Key_Return} << "Otto";
    QTest::newRow("nothing typed") << "" << QList<int>{Qt::Key_Return, Qt::Key_Escape} << "";
    QTest::newRow("no such name") << "x" << QList<int>{Qt::Key_Return, Qt::Key_Escape} << "";
    QTest::newRow("left") << "o" << QList<int>{Qt::Key_Escape} << "";
  }
  void aNameOfManyIsFoundByAPartOfIt() {
    QFETCH(const QString, digitato);
    QFETCH(const QList<int>, tasti);
    QFETCH(const QString, scelto);
    bool risposto = false;
    const Qualcuno qualcuno([&](QDialog& box) {
      if (std::exchange(risposto, true)) return;
      auto* campo = box.findChild<QLineEdit*>("filtro");
      QTest::keyClicks(campo, digitato);
      for (const int tasto : tasti) QTest::keyClick(campo, static_cast<Qt::Key>(tasto));
    });
    QCOMPARE(QString::fromStdString(ServiziDesktop().scegli("In quale?", "Copia", {"Sette", "Otto", "Nove"})),
             scelto);
  }

  void aMessageBoxAsksAndAnswersAsItShould_data() {
    QTest::addColumn<Messaggio>("messaggio");
    QTest::addColumn<QString>("pulsanti");
    QTest::addColumn<int>("icona");
    QTest::addColumn<QList<Risposta>>("risposte");  // to Enter, to Esc, to the close box
    QTest::newRow("notice") << kNotizia << "OK" << 0 << QList<Risposta>(3, Risposta::Ok);
    QTest::newRow("refusal") << kRifiuto << "OK" << int(QMessageBox::Warning)
                             << QList<Risposta>(3, Risposta::Ok);
    QTest::newRow("question") << kDomanda << "No Sì" << 0
                              << QList<Risposta>{Risposta::Si, Risposta::No, Risposta::No};
    QTest::newRow("dangerous question") << kPericolo << "No Sì" << 0 << QList<Risposta>(3, Risposta::No);
  }
  void aMessageBoxAsksAndAnswersAsItShould() {
    QFETCH(const Messaggio, messaggio);
    QFETCH(const QString, pulsanti);
    QFETCH(const int, icona);
    QFETCH(const QList<Risposta>, risposte);
    for (int gesto = 0; gesto < 3; ++gesto) {
      QStringList visto;
      const Qualcuno qualcuno([&](QDialog& finestra) {
        const auto& box = dynamic_cast<QMessageBox&>(finestra);
        QStringList testi;
        for (const auto* pulsante : box.buttons()) testi << pulsante->text().remove('&');
        testi.sort();
        visto = {box.windowTitle(), box.text(), testi.join(' '), QString::number(box.icon())};
        if (box.textFormat() != Qt::PlainText) visto << "marked up";
        gesto == 2 ? finestra.reject()
                   : QTest::keyClick(&finestra, gesto == 0 ? Qt::Key_Return : Qt::Key_Escape);
      });
      QCOMPARE(ServiziDesktop().mostra(messaggio), risposte[gesto]);
      QCOMPARE(visto, QStringList({"titolo", "<b>testo</b>", pulsanti, QString::number(icona)}));
    }
  }

  void whatIsTypedOrPickedCountsUnlessTheBoxIsCancelled() {
    const QTemporaryDir cartella;
    QFile(cartella.filePath("è.txt")).open(QIODevice::WriteOnly);
    for (const bool annulla : {false, true}) {
      const Qualcuno qualcuno([&](QDialog& box) {
        if (auto* scelta = qobject_cast<QFileDialog*>(&box)) {
          QCOMPARE(scelta->windowTitle(), QString("titolo"));
          scelta->setDirectory(cartella.path());
          scelta->findChild<QLineEdit*>("fileNameEdit")->setText("è.txt");
          QMetaObject::invokeMethod(scelta, annulla ? "reject" : "accept");
          return;
        }
        box.findChild<QLineEdit*>("risposta")->setText("à");
        QTest::keyClick(&box, annulla ? Qt::Key_Escape : Qt::Key_Return);
      });
      QCOMPARE(ServiziDesktop().chiedi("domanda", "titolo"), annulla ? "" : "à");
      QCOMPARE(QString::fromStdString(testoDi(ServiziDesktop().scegliFile("titolo"))),
               annulla ? QString() : cartella.filePath("è.txt"));
    }
  }

  void longWorkShowsABoxUntilItsEnd() {
    ServiziDesktop servizi;
    const auto box = [] { return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()); };
    QTRY_VERIFY((servizi.avanzamento("Lavoro", 40), box() != nullptr));
    QVERIFY(box()->value() == 40 && box()->labelText() == "Lavoro");
    servizi.avanzamento("Lavoro", 100);
    QVERIFY(box() == nullptr);
  }

  void thePagesGoToTheBrowserAndTheDateIsTodays() {
    QDesktopServices::setUrlHandler("http", this, "pagina");
    ServiziDesktop().apriPagina("http://example.org/a?b=c");
    QDesktopServices::unsetUrlHandler("http");
    QCOMPARE(pagine_, QStringList("http://example.org/a?b=c"));
    const auto oggi = ServiziDesktop().oggi();
    QCOMPARE(QDate(int(oggi.year()), int(unsigned(oggi.month())), int(unsigned(oggi.day()))),
             QDate::currentDate());
  }

  void theStatusBarSaysWhatWasDoneAndAHintHowToDoWithoutAPrinter() {
    PrincipaleProva v;
    ServiziDesktop servizi;
    servizi.padre(&v.finestra);
    const auto detto = [&] { return v.finestra.statusBar()->currentMessage(); };
    const Qualcuno qualcuno([](QDialog& box) { box.accept(); });
    servizi.mostra({"Importate 3 estrazioni\n\nAltro"});
    servizi.mostra(kDomanda);
    servizi.mostra(kRifiuto);
    QCOMPARE(detto(), QString("Importate 3 estrazioni"));
    servizi.segnala("Non c'è una copia");
    servizi.fatto("Estrazione 3 cancellata");
    QCOMPARE(detto(), QString("Estrazione 3 cancellata · Non c'è una copia"));
    servizi.stampa("testo");
    QCOMPARE(detto(), QString("Nessuna stampante: niente è stato stampato"));
    QTRY_VERIFY(QToolTip::text().contains("Salva come PDF"));
    QToolTip::hideText();
  }

  void aDownloadIsStoppedByEscAndNothingElseIsDoneMeanwhile() {
    PrincipaleProva v;
    const ServerProva server({});  // reached, and silent
    ServiziDesktop servizi;
    servizi.padre(&v.finestra);
    const Qualcuno qualcuno([&](QDialog& box) {
      QTest::keyClick(v.finestra.windowHandle(), Qt::Key_V, Qt::AltModifier);
      QCOMPARE(v.aperte(), QStringList());
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    QVERIFY(!servizi.scarica(server.indirizzo("/archivio"), v.p.radice / "archivion71.dat"));
    QVERIFY(!v.p.esiste("archivion71.dat"));
  }

  void aFailureEndsTheProgramWithOneBoxAndStatus1() {
    QProcess altro;
    altro.start(QCoreApplication::applicationFilePath(), {"finisci"});
    QVERIFY(altro.waitForFinished(60000));
    QCOMPARE(altro.exitStatus(), QProcess::NormalExit);
    QCOMPARE(altro.exitCode(), 1);
    const auto detto = QString::fromUtf8(altro.readAllStandardOutput());
    QVERIFY2(detto.contains("Errore di run-time 9") && detto.contains("\"Vaticla\""), qPrintable(detto));
  }

 private:
  QStringList pagine_;
};

int main(int argc, char* argv[]) {
  QApplication applicazione(argc, argv);
  preparaApplicazione(applicazione);
  if (argc > 1 && std::string_view(argv[1]) == "finisci") return finisci();
  ServiziGuiTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "servizi_gui_test.moc"
