#include <QScrollBar>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// Thirty draws: draw n has n and n + 1 on Bari and n on Nazionale.
struct Modifica : PrincipaleProva {
  Modifica() {
    ArchivioProva archivio(30);
    for (int n = 1; n <= 30; ++n) archivio.ruota(n, 1, {n, n + 1}).ruota(n, 11, {n});
    archivio.data(1, 3, 3, 1946).data(12, 17, 5, 2004).scrivi(p);
    scegli("mnu1Modifica");
  }
  /// "bar/its end: draw date, numbers of Bari", as the window shows them.
  [[nodiscard]] QString vista() const {
    const auto& barra = usa<QScrollBar>("VScroll1");
    return QString("%1/%2: %3 %4, %5")
        .arg(barra.value())
        .arg(barra.maximum())
        .arg(testo("lblnestr"), testo("lbldataestr"), numeri(0));
  }
  QString cerca(const char* digitato) {
    p.servizi.digitato = digitato;
    premi(Qt::Key_T, Qt::AltModifier);
    return vista();
  }
};

}  // namespace

class ModificaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void itOpensOnTheNewestDrawAndKeysOnTheBarWalkTheArchive() {
    Modifica v;
    QCOMPARE(v.vista(), QString("31/31: 30 12/3/2005, 30 31 0 0 0"));
    v.usa("VScroll1").setFocus();
    const struct {
      Qt::Key tasto;
      const char* vista;
    } passi[] = {{Qt::Key_Up, "30/31: 29 12/3/2005, 29 30 0 0 0"},
                 {Qt::Key_PageUp, "20/31: 19 12/3/2005, 19 20 0 0 0"},
                 {Qt::Key_Home, "1/31: 1 3/3/1946, 1 2 0 0 0"},
                 {Qt::Key_Down, "2/31: 1 3/3/1946, 1 2 0 0 0"},
                 {Qt::Key_Down, "3/31: 2 12/3/2005, 2 3 0 0 0"},
                 {Qt::Key_PageDown, "13/31: 12 17/5/2004, 12 13 0 0 0"},
                 {Qt::Key_End, "31/31: 30 12/3/2005, 30 31 0 0 0"}};
    for (const auto& passo : passi) {
      v.premi(passo.tasto);
      QCOMPARE(v.vista(), QString(passo.vista));
    }
  }

  void aCorrectedDrawIsSavedAsItStandsInTheYear20xx() {
    Modifica v;
    v.usa("VScroll1").setFocus();
    v.premi(Qt::Key_Home);
    auto atteso = v.p.contenuto("archivion71.dat");
    v.clicca("txtestr_0");
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("255");  // no test for a range, and none for duplicates
    v.premi(Qt::Key_Return);
    v.scrivi("9");
    v.premi(Qt::Key_Enter);
    QCOMPARE(v.fuoco(), QString("txtestr_2"));
    v.premi(Qt::Key_S, Qt::AltModifier);
    atteso[15000] = '\xFF';          // draw 1, Bari, first number
    atteso[15000 + 180000] = '\x9';  // and its second
    atteso[540000] = '\x14';         // the century
    QVERIFY(v.p.contenuto("archivion71.dat") == atteso);
    QCOMPARE(v.vista(), QString("1/31: 1 3/3/1946, 255 9 0 0 0"));

    v.clicca("txtestr_54");
    v.premi(Qt::Key_Backspace);
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.failures(), QList<int>{13});
    QVERIFY(v.p.contenuto("archivion71.dat") == atteso);
    QCOMPARE(v.detti(), QStringList(2, "[Attenzione] Sei sicuro di voler modificare l'estrazione corrente"));
  }

  void aDrawIsFoundByNumberOrDateAndDeleted() {
    Modifica v;
    QCOMPARE(v.cerca("29"), QString("30/31: 29 12/3/2005, 29 30 0 0 0"));
    QCOMPARE(v.cerca("10.5.04"), QString("13/31: 12 17/5/2004, 12 13 0 0 0"));
    QCOMPARE(v.cerca("1"), QString("13/31: 12 17/5/2004, 12 13 0 0 0"));  // meant: the question offers it
    QCOMPARE(v.detti(), QStringList("[Attenzione] Inserisci un valore corretto compreso tra 1 e 30."));
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList("[Attenzione] Sei sicuro di voler cancellare l'estrazione selezionata"));
    QCOMPARE(v.vista(), QString("30/30: 29 12/3/2005, 30 31 0 0 0"));
    QCOMPARE(v.aperte(), QStringList("Modifica Estrazione"));
    QCOMPARE(v.cerca("12"), QString("13/30: 12 12/3/2005, 13 14 0 0 0"));
    QCOMPARE(v.numeri(50), QString("12 0 0 0 0"));  // the Nazionale does not move
  }

  void comingBackFromAnotherWindowShowsTheNewestDrawOrTheFreeSlot() {
    const struct {
      Qt::Key barra, chiude;  // the latter with Ctrl
      const char* dopo;
    } casi[] = {{Qt::Key_Home, Qt::Key_F4, "31/31: 30 12/3/2005, 30 31 0 0 0"},
                {Qt::Key_End, Qt::Key_W, "31/31: 31 0/0/000, 0 0 0 0 0"}};
    for (const auto& caso : casi) {
      Modifica v;
      v.usa("VScroll1").setFocus();
      v.premi(caso.barra);
      v.scegli("mnuUtility3");
      QCOMPARE(v.aperte(), QStringList({"Modifica Estrazione", "Somma/Distanza Estratti"}));
      v.premi(caso.chiude, Qt::ControlModifier);
      QCOMPARE(v.aperte(), QStringList("Modifica Estrazione"));
      QCOMPARE(v.vista(), QString(caso.dopo));
    }
  }
};

QTEST_MAIN(ModificaGuiTest)
#include "modifica_gui_test.moc"
