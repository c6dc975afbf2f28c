#include <QScrollBar>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

const QString kModificare = "[Attenzione] Sei sicuro di voler modificare l'estrazione corrente";
const QString kCancellare = "[Attenzione] Sei sicuro di voler cancellare l'estrazione selezionata";

/// Thirty draws: draw n has n to n + 4 on Bari and n alone on Nazionale.
struct Modifica : PrincipaleProva {
  Modifica() {
    ArchivioProva archivio(30);
    for (int n = 1; n <= 30; ++n) archivio.ruota(n, 1, {n, n + 1, n + 2, n + 3, n + 4}).ruota(n, 11, {n});
    archivio.data(1, 3, 3, 1946).data(12, 17, 5, 2004).scrivi(p);
    scegli("mnu1Modifica");
  }
  /// "bar/its end: draw date", as the window shows them.
  [[nodiscard]] QString vista() const {
    const auto& barra = usa<QScrollBar>("VScroll1");
    return QString("%1/%2: %3 %4")
        .arg(barra.value())
        .arg(barra.maximum())
        .arg(testo("lblnestr"), testo("lbldataestr"));
  }
  void cerca(const char* digitato) {
    p.servizi.digitato = digitato;
    premi(Qt::Key_T, Qt::AltModifier);
  }
  [[nodiscard]] std::string archivio() const { return p.contenuto("archivion71.dat"); }
};

}  // namespace

class ModificaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void itOpensOnTheNewestDrawAndKeysOnTheBarWalkTheArchive() {
    Modifica v;
    QCOMPARE(v.vista(), QString("31/31: 30 12/3/2005"));
    QCOMPARE(v.numeri(0, 6), QString("30 31 32 33 34 0"));
    QCOMPARE(v.numeri(50), QString("30 0 0 0 0"));
    v.usa("VScroll1").setFocus();
    const struct {
      Qt::Key tasto;
      const char* vista;
      const char* bari;
    } passi[] = {
        {Qt::Key_Up, "30/31: 29 12/3/2005", "29 30 31 32 33"},
        {Qt::Key_PageUp, "20/31: 19 12/3/2005", "19 20 21 22 23"},
        {Qt::Key_Home, "1/31: 1 3/3/1946", "1 2 3 4 5"},
        {Qt::Key_Down, "2/31: 1 3/3/1946", "1 2 3 4 5"},
        {Qt::Key_Down, "3/31: 2 12/3/2005", "2 3 4 5 6"},
        {Qt::Key_PageDown, "13/31: 12 17/5/2004", "12 13 14 15 16"},
        {Qt::Key_End, "31/31: 30 12/3/2005", "30 31 32 33 34"},
    };
    for (const auto& passo : passi) {
      v.premi(passo.tasto);
      QCOMPARE(v.vista(), QString(passo.vista));
      QCOMPARE(v.numeri(0), QString(passo.bari));
    }
  }

  void aCorrectedDrawIsSavedAsItStandsInTheYear20xx() {
    Modifica v;
    v.usa("VScroll1").setFocus();
    v.premi(Qt::Key_Home);
    v.clicca("txtestr_0");
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("255");  // no test for a range, and none for duplicates
    v.premi(Qt::Key_Return);
    v.scrivi("3");
    v.premi(Qt::Key_Enter);
    QCOMPARE(v.fuoco(), QString("txtestr_2"));
    auto atteso = v.archivio();
    v.p.servizi.risposta = Risposta::No;
    v.premi(Qt::Key_S, Qt::AltModifier);
    QVERIFY(v.archivio() == atteso);
    v.p.servizi.risposta = Risposta::Si;
    v.premi(Qt::Key_S, Qt::AltModifier);
    atteso[15000] = '\xFF';          // draw 1, Bari, first number
    atteso[15000 + 180000] = '\x3';  // and its second
    atteso[540000] = '\x14';         // the century
    QVERIFY(v.archivio() == atteso);
    QCOMPARE(v.detti(), QStringList({kModificare, kModificare}));
    QCOMPARE(v.numeri(0), QString("255 3 3 4 5"));
    QCOMPARE(v.vista(), QString("1/31: 1 3/3/1946"));

    v.clicca("txtestr_54");
    v.premi(Qt::Key_Backspace);
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList(kModificare));
    QCOMPARE(v.failures(), QList<int>{13});
    QVERIFY(v.archivio() == atteso);
  }

  void aDrawIsFoundByNumberOrDate() {
    Modifica v;
    v.cerca("29");
    QCOMPARE(v.vista(), QString("30/31: 29 12/3/2005"));
    v.cerca("10.5.04");
    QCOMPARE(v.vista(), QString("13/31: 12 17/5/2004"));
    v.cerca("1");  // the question and the message offer it all the same
    QCOMPARE(v.detti(), QStringList("[Attenzione] Inserisci un valore corretto compreso tra 1 e 30."));
    v.cerca("domani");
    QCOMPARE(v.detti(), QStringList("[Attenzione] Inserisci un valore numerico"));
    v.cerca("");
    QCOMPARE(v.vista(), QString("13/31: 12 17/5/2004"));
    QCOMPARE(v.numeri(0), QString("12 13 14 15 16"));
    QCOMPARE(v.p.servizi.domande.size(), 5U);
  }

  void aDeletedDrawIsGoneAndTheWindowOpensAnewOnTheNewest() {
    Modifica v;
    v.cerca("12");
    v.p.servizi.risposta = Risposta::No;
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.vista(), QString("13/31: 12 17/5/2004"));
    v.p.servizi.risposta = Risposta::Si;
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList({kCancellare, kCancellare}));
    QCOMPARE(v.vista(), QString("30/30: 29 12/3/2005"));
    QCOMPARE(v.aperte(), QStringList("Modifica Estrazione"));
    v.cerca("12");
    QCOMPARE(v.vista(), QString("13/30: 12 12/3/2005"));
    QCOMPARE(v.numeri(0), QString("13 14 15 16 17"));
    QCOMPARE(v.numeri(50), QString("12 0 0 0 0"));  // the Nazionale does not move
  }

  void comingBackFromAnotherWindowShowsTheNewestDrawOrTheFreeSlot() {
    for (const auto& [tasto, dopo] :
         {std::pair{Qt::Key_Home, "31/31: 30 12/3/2005"}, {Qt::Key_End, "31/31: 31 0/0/000"}}) {
      Modifica v;
      v.usa("VScroll1").setFocus();
      v.premi(tasto);
      v.scegli("mnuUtility3");
      QCOMPARE(v.aperte(), QStringList({"Modifica Estrazione", "Somma/Distanza Estratti"}));
      v.premi(Qt::Key_F4, Qt::ControlModifier);
      QCOMPARE(v.vista(), QString(dopo));
    }
  }

  void itClosesAtOnceWithoutAQuestion() {
    Modifica v;
    const std::function<void()> uscite[] = {[&] { v.clicca("btnAnnulla"); },
                                            [&] { v.premi(Qt::Key_F4, Qt::ControlModifier); },
                                            [&] { v.figlia().close(); }};
    for (const auto& esci : uscite) {
      v.scegli("mnu1Modifica");
      esci();
      QCOMPARE(v.aperte(), QStringList());
    }
  }
};

QTEST_MAIN(ModificaGuiTest)
#include "modifica_gui_test.moc"
