#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "desktop/vista_splash.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

struct Principale : PrincipaleProva {
  Principale() { archivioDi(3).scrivi(p); }
  /// A click on the main part of a toolbar button. The captions of the windows that are then open.
  QStringList barra(const char* chiave) {
    auto* bottone = finestra.findChild<QToolButton*>(chiave);
    if (!bottone->isEnabled() || !bottone->isVisible()) return {"no such button"};
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, bottone->mapTo(&finestra, QPoint(8, 8)));
    return aperte();
  }
};

/// A splash on the screen that counts how often it opens the main window.
struct Splash {
  Splash() {
    finestra.show();
    QVERIFY(QTest::qWaitForWindowActive(&finestra));
  }
  int aperture = 0;
  VistaSplash finestra{[this] { ++aperture; }};
};

}  // namespace

class PrincipaleGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void anyKeyEndsTheSplashAtOnceAndOnlyOnce() {
    for (const auto tasto : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Shift}) {
      Splash splash;
      QTest::keyPress(splash.finestra.windowHandle(), tasto);
      QVERIFY(splash.aperture == 1 && !splash.finestra.isVisible());
      QTest::keyClick(&splash.finestra, tasto);
      QCOMPARE(splash.aperture, 1);
    }
  }

  void withoutAKeyTheSplashWaitsFiveSecondsWhateverTheMouseDoes() {
    Splash splash;
    QTest::mouseClick(splash.finestra.windowHandle(), Qt::LeftButton);
    auto* timer = splash.finestra.findChild<QTimer*>();
    QVERIFY(timer->isActive() && timer->isSingleShot() && splash.finestra.isVisible());
    QCOMPARE(timer->interval(), 5000);
    timer->setInterval(0);
    QTRY_COMPARE(splash.aperture, 1);
    QVERIFY(!splash.finestra.isVisible());
  }

  void theToolbarAndItsDropDownItemsOpenWindowsAndLeaveThroughExit() {
    Principale v;
    auto& scelto = v.p.globals().MetodoScelto;
    for (const int cifra : {2, 3, 6, 7, 8, 9})
      for (const auto& [chiave, aperta] : {std::pair{"NumPrev%1", "Vaticla"}, {"NumStat%1", "Statistica"}}) {
        v.scegli(QString(chiave).arg(cifra));
        QCOMPARE(v.aperte() << QString::number(scelto), QStringList({aperta, QString::number(cifra + 1)}));
      }
    QCOMPARE(v.barra("Sirvan9"), QStringList("Statistica"));  // its main part does nothing
    QCOMPARE(v.barra("Sirvan1").last(), QString("Statistica"));
    QCOMPARE(scelto, 10);
    v.scegli("mnu1metodo1");
    QCOMPARE(scelto, 1);
    QStringList suggerimenti;
    for (const auto* bottone : v.finestra.findChild<QToolBar*>("Toolbar1")->findChildren<QToolButton*>()) {
      if (bottone->isHidden()) continue;
      suggerimenti << bottone->objectName() + '=' + bottone->toolTip();
      QVERIFY2(!bottone->icon().pixmap(32).toImage().allGray(), "no picture");
    }
    QCOMPARE(
        suggerimenti.join('|'),
        QString("Insert=Inserisci Estrazione|Modify=Modifica Estrazione|Sirvan=Vaticla|Sirvan1=Statistica|"
                "Sirvan2=Metodo 3|Sirvan3=Metodo 4|Sirvan6=Metodo 7|Sirvan7=Metodo 8|Sirvan8=Metodo 9|"
                "Sirvan9=Metodo 10|Info=Informazioni sul programma|Exit=Esci dal Programma"));
    QCOMPARE(v.barra("Sirvan"), QStringList("Vaticla"));
    QVERIFY(v.p.esiste("Esiti.txt"));
    v.barra("Exit");
    QVERIFY(!v.finestra.isVisible() && !v.p.esiste("Esiti.txt"));
  }

  void aMethodIsMadeByItsName() {
    Principale v;
    v.scegli("mnuGestione11");  // no name: nothing happens
    v.p.servizi.digitato = "Mio";
    v.scegli("mnuGestione11");
    QCOMPARE(v.detti(), QStringList("[Vaticlo] Il metodo è stato creato!"));
    QVERIFY(v.p.esiste("Metodi/Mio.dat"));
  }

  void aFailureReachesTheBoundaryOnceFromTheMenuAndNeverFromTheToolbar() {
    Principale v;
    archivioDi(15000).scrivi(v.p);
    for (const auto& [voce, bottone] : {std::pair{"mnu1Modifica", "Modify"}, {"mnuMetodi", "Sirvan"}}) {
      v.scegli(voce);
      QCOMPARE(v.failures(), QList<int>{9});
      if (!v.aperte().isEmpty()) v.figlia().close();
      v.barra(bottone);
      QCOMPARE(v.failures(), QList<int>());
    }
    archivioDi(3).scrivi(v.p);
    QCOMPARE(v.barra("Sirvan"), QStringList("Vaticla"));  // what failed to open has left nothing behind
  }

  void theStatusBarKeepsAWarningAndWhatWasDoneWhateverItsWidth() {
    Principale v;
    const auto* avviso = v.finestra.findChild<QLabel*>("statoAvviso");
    QVERIFY(avviso->isHidden());
    v.barra("Sirvan1");
    const QString testo = "Dalla barra la statistica non conta nulla: apritela dal menu";
    v.finestra.resize(1300, v.finestra.height());
    QTRY_COMPARE(avviso->text(), testo);
    const QString fatto = "Aggiunte 3 estrazioni, dal 10/3/2005 al 15/3/2005, a quelle che c'erano";
    v.finestra.statusBar()->showMessage(fatto);
    v.finestra.resize(600, v.finestra.height());
    QTRY_VERIFY(avviso->text() != testo && avviso->width() + 20 < v.finestra.width());
    QVERIFY(avviso->isVisible() && avviso->accessibleName() == testo);
    QStatusTipEvent vuoto{QString()};  // as an entry of a menu sends it
    QApplication::sendEvent(&v.finestra, &vuoto);
    QCOMPARE(v.finestra.statusBar()->accessibleDescription(), fatto);
    v.scegli("mnu1metodo1");
    QVERIFY(avviso->isHidden());
  }

  void theStartPageFollowsWhatHappensInTheFolder() {
    PrincipaleProva v;
    const auto testo = [&](const char* nome) {
      const auto* etichetta = v.finestra.findChild<QLabel*>(nome);
      return etichetta == nullptr ? QString() : etichetta->text();
    };
    QTRY_COMPARE(testo("inizioArchivio"), QString("L'archivio non ha ancora estrazioni"));
    QVERIFY(!v.p.esiste("archivion71.dat"));
    auto* prova = v.finestra.findChild<QPushButton*>("inizioDimostrazione");
    prova->setFocus();
    v.premi(Qt::Key_Space);
    QTRY_COMPARE(v.p.servizi.messaggi.size(), 1U);
    QVERIFY(v.detti().value(0).contains("360 estrazioni"));
    QTRY_VERIFY(testo("inizioArchivio").startsWith("360 estrazioni, l'ultima del 20/09/2001, "));
    QVERIFY(v.finestra.findChild<QPushButton*>("inizioDimostrazione") == nullptr);
    archivioDi(3).scrivi(v.p);  // by another program
    QTRY_COMPARE(testo("statoArchivio"), QString("3 estrazioni · ultima 12/03/2005"));
  }
};

QTEST_MAIN(PrincipaleGuiTest)
#include "principale_gui_test.moc"
