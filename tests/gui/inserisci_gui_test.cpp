#include <QDateEdit>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

const QString kSalvare = "[Attenzione] Sei sicuro di voler salvare l'estrazione";

struct Inserisci : PrincipaleProva {
  Inserisci() {
    archivioDi(2).scrivi(p);
    scegli("mnu1Inserisci");
  }
  /// Types a number and leaves the field with Tab. "txtestr_5" when the focus is then there.
  QString metti(const QString& testo) {
    scrivi(testo);
    premi(Qt::Key_Tab);
    return fuoco();
  }
};

}  // namespace

class InserisciGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aDrawTypedWithKeysIsAppendedAndAFreshWindowFollows() {
    Inserisci v;
    auto atteso = v.p.contenuto("archivion71.dat");
    const auto cella = [&](int i, int j, int k, int valore) {
      atteso.at(static_cast<std::size_t>(i - 1 + 15000 * j + 180000 * (k - 1))) = static_cast<char>(valore);
    };
    const int data[] = {12, 5, 99, 20};
    for (int k = 1; k <= 4; ++k) cella(3, 0, k, data[k - 1]);
    QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
    for (int f = 0; f < 55; ++f) {
      QCOMPARE(v.fuoco(), QString("txtestr_%1").arg(f));
      const int numero = f * 7 % 90 + 1;  // of one digit and of two, no two alike in a row
      cella(3, 1 + f / 5, 1 + f % 5, numero);
      v.metti(QString::number(numero));
    }
    QCOMPARE(v.fuoco(), QString("mcdatecombo1"));
    QCOMPARE(v.metti("12051999"), QString("btnSalva"));
    v.p.servizi.risposta = Risposta::No;
    v.premi(Qt::Key_Space);
    QCOMPARE(v.numeri(53, 2), QString("12 19"));
    v.p.servizi.risposta = Risposta::Si;
    v.premi(Qt::Key_Space);
    QCOMPARE(v.detti(), QStringList(2, kSalvare));
    QVERIFY(v.p.contenuto("archivion71.dat") == atteso);

    QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
    QCOMPARE(v.aperte(), QStringList("Inserimento Estrazioni"));
    QCOMPARE(v.numeri(0, 55), QStringList(55, "  ").join(' '));
    QCOMPARE(v.usa<QDateEdit>("mcdatecombo1").date(), QDate(2026, 3, 14));
  }

  void aFieldThatFailsKeepsTheFocusHoweverItIsLeft() {
    Inserisci v;
    const std::function<void()> uscite[] = {[&] { v.premi(Qt::Key_Tab); }, [&] { v.clicca("txtestr_7"); },
                                            [&] { v.clicca("btnSalva"); },
                                            [&] { v.premi(Qt::Key_S, Qt::AltModifier); }};
    for (const QString testo : {"", "0", "91"})
      for (const auto& esci : uscite) {
        v.scrivi(testo);
        esci();
        QTRY_COMPARE(v.fuoco(), QString("txtestr_0"));
        QCOMPARE(v.testo("txtestr_0"), testo.leftJustified(2));
        QVERIFY(v.p.servizi.messaggi.at(0).icona == Icona::Esclamazione);
        QCOMPARE(v.detti(), QStringList("[Attenzione] Inserire un valore valido compreso tra 1 e 90"));
      }
    QCOMPARE(v.metti("90x1"), QString("txtestr_1"));  // two digits and nothing else can be typed
    QCOMPARE(v.metti("1"), QString("txtestr_2"));
    QCOMPARE(v.numeri(0, 2), QString("90 1 "));
  }

  void aNumberIsComparedAsATextWithTheFieldsAtItsLeft() {
    Inserisci v;
    const auto gia = [](const QString& testo) {
      return QStringList("[Attenzione] ''" + testo + "'' è stato già inserito come estratto nella ruota");
    };
    v.metti("12");
    v.metti("5");
    QCOMPARE(v.metti("12"), QString("txtestr_2"));
    QCOMPARE(v.detti(), gia("12"));
    QCOMPARE(v.metti("5"), QString("txtestr_2"));
    QCOMPARE(v.detti(), gia("5 "));
    QCOMPARE(v.metti(" 5"), QString("txtestr_3"));  // the right-hand place of the mask
    v.metti("20");
    v.metti("21");
    QCOMPARE(v.metti("12"), QString("txtestr_6"));  // the next wheel
    v.scrivi("30");
    v.premi(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(v.metti("30"), QString("txtestr_6"));  // nothing looks to the right
    QCOMPARE(v.detti(), QStringList());
    QCOMPARE(v.metti(""), QString("txtestr_6"));
    QCOMPARE(v.detti(), gia("30"));
  }

  void esciIsReachedWithoutValidationAndAFieldNeverLeftIsNotValidated() {
    Inserisci v;
    const auto prima = v.p.contenuto("archivion71.dat");
    for (const bool conTasti : {true, false}) {
      v.scrivi("91");
      conTasti ? v.premi(Qt::Key_E, Qt::AltModifier) : v.clicca("btnCancella");
      QCOMPARE(v.aperte(), QStringList());
      v.scegli("mnu1Inserisci");
    }
    v.scrivi("1");
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList(kSalvare));
    QCOMPARE(v.failures(), QList<int>{13});
    QVERIFY(v.p.contenuto("archivion71.dat") == prima);
  }
};

QTEST_MAIN(InserisciGuiTest)
#include "inserisci_gui_test.moc"
