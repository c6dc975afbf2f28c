#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

// An entry, its entries behind a "-" more.
constexpr const char* kMenu =
    "mnuArchivio &Archivio|-mnu1Inserisci &Inserisci Estrazione|-mnu1Modifica &Modifica Estrazione|"
    "-mnu1Aggiorna &Aggiorna via Internet|mnuMetodi &Vaticla|mnu1metodo1 &Statistica|mnuGestione &Gestione|"
    "-mnuGestione1 &Metodi|--mnuGestione11 &Crea Metodo|--mnuGestione12 &Modifica Metodo|"
    "-mnuGestione2 &Previsioni|--mnuGestione21 &Crea Previsione|--mnuGestione22 &Modifica Previsione|"
    "mnuUtility &Utility|-mnuUtility1 Previsioni in Gioco|-mnuUtility2 Vincenti alle Ultime Estrazioni|"
    "-mnuUtility3 Somma/Distanza Estratti|-mnuUtility4 Scarica Archivio di Riserva|"
    "-mnuUtility5 Importa Estrazioni da File...|"
    "-mnuUtility6 Estrazioni del Lotto (pagina web)|-mnuUtility7 Regole del Lotto (pagina web)|"
    "mnuInformazioni &?|-mnuInformazioni1 &Guida|-mnuInformazioni2 &Informazioni su....";
const QList<int> kCifre = {2, 3, 6, 7, 8, 9};  // in the keys of the buttons that have a menu

QStringList albero(const QList<QAction*>& voci, const QString& rientro = {}) {
  QStringList righe;
  for (const auto* voce : voci) {
    righe << rientro + voce->objectName() + ' ' + voce->text();
    if (voce->menu() != nullptr) righe << albero(voce->menu()->actions(), rientro + '-');
  }
  return righe;
}

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

}  // namespace

class PrincipaleGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void menuAndToolbarOfferWhatTheyShouldInOrder() {
    Principale v;
    QCOMPARE(v.finestra.windowTitle(), QString("Vaticlo"));
    QCOMPARE(v.finestra.size(), QSize(800, 600));
    QCOMPARE(albero(v.finestra.menuBar()->actions()), QString(kMenu).split('|'));
    QStringList attesi = {"Insert Inserisci Estrazione", "Modify Modifica Estrazione", "Sirvan Vaticla",
                          "Sirvan1 Statistica"};
    for (const int d : kCifre)
      attesi << QString("Sirvan%1 Metodo %2").arg(d).arg(d + 1)
             << QString("-NumPrev%1 Calcola Previsione").arg(d) << QString("-NumStat%1 Statistica").arg(d);
    attesi << "Info Informazioni sul programma"
           << "Exit Esci dal Programma";
    const auto* barra = v.finestra.findChild<QToolBar*>("Toolbar1");
    QStringList bottoni;
    for (auto* azione : barra->actions()) {
      const auto* bottone = qobject_cast<QToolButton*>(barra->widgetForAction(azione));
      bottoni << bottone->objectName() + ' ' + bottone->toolTip();
      if (bottone->menu() != nullptr) bottoni << albero(bottone->menu()->actions(), "-");
      const auto figura = bottone->icon().pixmap(32).toImage();
      QVERIFY2(!figura.allGray(), qPrintable(bottoni.last()));  // an empty picture is grey
    }
    QCOMPARE(bottoni, attesi);
  }

  void accessKeysReachTheEntries() {
    const std::pair<QList<Qt::Key>, const char*> casi[] = {
        {{Qt::Key_A, Qt::Key_I}, "Inserimento Estrazioni"},
        {{Qt::Key_A, Qt::Key_M}, "Modifica Estrazione"},
        {{Qt::Key_V}, "Vaticla"},
        {{Qt::Key_G, Qt::Key_P, Qt::Key_M}, "Modifica Previsione"},
        {{Qt::Key_U, Qt::Key_Down, Qt::Key_Return}, "Vincenti alle ultime Estrazioni"}};
    for (const auto& [tasti, aperta] : casi) {
      Principale v;
      v.premi(tasti[0], Qt::AltModifier);
      for (const auto tasto : tasti.mid(1)) v.premi(tasto);
      QCOMPARE(v.aperte(), QStringList(aperta));
    }
  }

  void theDropDownItemsChooseTheMethodAndTheButtonsLeaveIt() {
    Principale v;
    auto& scelto = v.p.globals().MetodoScelto;
    for (const int cifra : kCifre)
      for (const auto& [chiave, aperta] : {std::pair{"NumPrev%1", "Vaticla"}, {"NumStat%1", "Statistica"}}) {
        scelto = 0;
        v.scegli(QString(chiave).arg(cifra));
        QCOMPARE(scelto, cifra + 1);
        QCOMPARE(v.aperte(), QStringList(aperta));
      }
    v.scegli("NumStat2");
    QCOMPARE(v.barra("Sirvan9"), QStringList("Statistica"));  // its main part does nothing
    QCOMPARE(v.barra("Sirvan"), QStringList("Vaticla"));
    QCOMPARE(v.barra("Sirvan1").last(), QString("Statistica"));
    QCOMPARE(scelto, 3);
    v.scegli("mnu1metodo1");
    QCOMPARE(scelto, 1);
  }

  void closingDeletesTheReportOfTheLastCheckAlone() {
    Principale v;
    v.p.scrivi("Stat.txt", "totali");
    v.scegli("mnuMetodi");
    QVERIFY(v.p.esiste("Esiti.txt"));
    v.barra("Exit");
    QVERIFY(!v.finestra.isVisible());
    QVERIFY(!v.p.esiste("Esiti.txt") && v.p.contenuto("Stat.txt") == "totali");
  }

  void aFailureReachesTheBoundaryOnceFromTheMenuAndNeverFromTheToolbar() {
    Principale v;
    archivioDi(15000).scrivi(v.p);
    for (const auto& [voce, bottone] : {std::pair{"mnuMetodi", "Sirvan"}, {"mnu1Modifica", "Modify"}}) {
      v.scegli(voce);
      QCOMPARE(v.failures(), QList<int>{9});
      if (!v.aperte().isEmpty()) v.figlia().close();
      v.barra(bottone);
      QCOMPARE(v.failures(), QList<int>());
    }
  }
};

QTEST_MAIN(PrincipaleGuiTest)
#include "principale_gui_test.moc"
