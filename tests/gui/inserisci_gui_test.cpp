#include <QDateEdit>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

const QString kSalvare = "[Attenzione] Sei sicuro di voler salvare l'estrazione";
const QString kFuori = "[Attenzione] Inserire un valore valido compreso tra 1 e 90";

/// The number that the test types into field f: one digit and two, never twice in a row of five.
int numero(int f) { return f * 7 % 90 + 1; }

struct Inserimento : PrincipaleProva {
  explicit Inserimento(int estrazioni = 2) {
    archivioDi(estrazioni).scrivi(p);
    scegli("mnu1Inserisci");
  }
  /// Types a number and leaves the field with Tab.
  void metti(const QString& testo) {
    scrivi(testo);
    premi(Qt::Key_Tab);
  }
};

}  // namespace

class InserisciGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aDrawTypedWithKeysIsAppendedAndAFreshWindowFollows() {
    Inserimento v;
    auto atteso = v.p.contenuto("archivion71.dat");
    const auto cella = [&](int i, int j, int k, int valore) {
      atteso.at(static_cast<std::size_t>(i - 1 + 15000 * j + 180000 * (k - 1))) = static_cast<char>(valore);
    };
    cella(3, 0, 1, 12);
    cella(3, 0, 2, 5);
    cella(3, 0, 3, 99);
    cella(3, 0, 4, 20);
    QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
    QCOMPARE(v.testo("Label21"), QString("Cagliari"));
    for (int f = 0; f < 55; ++f) {
      QTRY_COMPARE(v.fuoco(), QString("txtestr_%1").arg(f));
      v.metti(QString::number(numero(f)));
      cella(3, 1 + f / 5, 1 + f % 5, numero(f));
    }
    QTRY_COMPARE(v.fuoco(), QString("mcdatecombo1"));
    v.metti("12051999");
    QCOMPARE(v.fuoco(), QString("btnSalva"));

    v.p.servizi.risposta = Risposta::No;
    v.premi(Qt::Key_Space);
    QCOMPARE(v.testo("txtestr_0"), QString("1 "));
    v.p.servizi.risposta = Risposta::Si;
    v.premi(Qt::Key_Space);
    QCOMPARE(v.detti(), QStringList({kSalvare, kSalvare}));
    QVERIFY(v.p.contenuto("archivion71.dat") == atteso);

    QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
    QCOMPARE(v.aperte(), QStringList("Inserimento Estrazioni"));
    QCOMPARE(v.numeri(0, 55), QStringList(55, "  ").join(' '));
    QCOMPARE(v.usa<QDateEdit>("mcdatecombo1").date(), QDate(2026, 3, 14));
  }

  void aFieldThatFailsKeepsTheFocusHoweverItIsLeft() {
    Inserimento v;
    const std::function<void()> uscite[] = {[&] { v.premi(Qt::Key_Tab); },
                                            [&] { v.premi(Qt::Key_Backtab, Qt::ShiftModifier); },
                                            [&] { v.clicca("txtestr_7"); }, [&] { v.clicca("btnSalva"); },
                                            [&] { v.premi(Qt::Key_S, Qt::AltModifier); }};
    for (const QString testo : {"", "0", "91", "00"})
      for (const auto& esci : uscite) {
        v.scrivi(testo);
        esci();
        QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
        QCOMPARE(v.testo("txtestr_0"), testo.leftJustified(2));
        QVERIFY(v.p.servizi.messaggi.at(0).icona == Icona::Esclamazione);
        QCOMPARE(v.detti(), QStringList(kFuori));
      }
    v.metti("90x1");  // two digits and nothing else can be typed
    QTRY_COMPARE(v.fuoco(), QString("txtestr_1"));
    v.metti("1");
    QTRY_COMPARE(v.fuoco(), QString("txtestr_2"));
    QCOMPARE(v.testo("txtestr_0") + v.testo("txtestr_1"), QString("901 "));
  }

  void aNumberIsComparedAsATextWithTheFieldsAtItsLeft() {
    Inserimento v;
    const auto gia = [](const QString& testo) {
      return QStringList("[Attenzione] ''" + testo + "'' è stato già inserito come estratto nella ruota");
    };
    v.metti("12");
    v.metti("5");
    v.metti("12");
    QTRY_COMPARE(v.fuoco(), QString("txtestr_2"));
    QCOMPARE(v.detti(), gia("12"));
    v.metti("5");
    QCOMPARE(v.detti(), gia("5 "));
    v.metti(" 5");  // the right-hand place of the mask
    QTRY_COMPARE(v.fuoco(), QString("txtestr_3"));
    v.metti("20");
    v.metti("21");
    v.metti("12");  // the next wheel
    QTRY_COMPARE(v.fuoco(), QString("txtestr_6"));
    v.scrivi("30");
    v.premi(Qt::Key_Backtab, Qt::ShiftModifier);
    v.metti("30");  // equal to the field at its right, which is found when that one is left again
    QTRY_COMPARE(v.fuoco(), QString("txtestr_6"));
    QCOMPARE(v.detti(), QStringList());
    v.premi(Qt::Key_Tab);
    QTRY_COMPARE(v.fuoco(), QString("txtestr_6"));
    QCOMPARE(v.detti(), gia("30"));
  }

  void esciIsReachedWithoutValidationAndSavesNothing() {
    for (const bool conTasti : {true, false}) {
      Inserimento v;
      const auto prima = v.p.contenuto("archivion71.dat");
      v.scrivi("91");
      conTasti ? v.premi(Qt::Key_E, Qt::AltModifier) : v.clicca("btnCancella");
      QCOMPARE(v.aperte(), QStringList());
      QVERIFY(v.p.contenuto("archivion71.dat") == prima);
    }
  }

  void aFieldTheFocusNeverLeftIsFirstMissedBySaving() {
    Inserimento v;
    const auto prima = v.p.contenuto("archivion71.dat");
    v.metti("1");
    v.scrivi("2");
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList(kSalvare));
    QCOMPARE(v.failures(), QList<int>{13});
    QVERIFY(v.p.contenuto("archivion71.dat") == prima);
    QCOMPARE(v.aperte(), QStringList("Inserimento Estrazioni"));
  }
};

QTEST_MAIN(InserisciGuiTest)
#include "inserisci_gui_test.moc"
