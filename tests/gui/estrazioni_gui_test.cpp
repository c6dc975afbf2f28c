#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// A window over thirty draws: draw n has n and n + 1 on Bari and n on Nazionale.
struct Estrazioni : PrincipaleProva {
  explicit Estrazioni(const char* voce) {
    ArchivioProva archivio(30);
    for (int n = 1; n <= 30; ++n) archivio.ruota(n, 1, {n, n + 1}).ruota(n, 11, {n});
    archivio.data(1, 3, 3, 1946).scrivi(p);
    scegli(voce);
  }
  /// The draw shown as "20 12/3/2005: 20 21 0 0 0": number, date, the numbers of Bari.
  [[nodiscard]] QString vista() const {
    return testo("lblnestr") + ' ' + testo("lbldataestr") + ": " + numeri(0);
  }
  /// Types a number and leaves the field with Tab. The name of what has the focus then.
  QString metti(const QString& testo) {
    scrivi(testo);
    premi(Qt::Key_Tab);
    return fuoco();
  }
};

}  // namespace

class EstrazioniGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aNumberIsTestedWhenItsFieldIsLeftAndNotOnTheWayOut() {
    Estrazioni v("mnu1Inserisci");
    for (const QString testo : {"", "91"}) {
      QCOMPARE(v.metti(testo), QString("txtestr_0"));
      QCOMPARE(v.testo("txtestr_0"), testo.leftJustified(2));
      QCOMPARE(v.detti(), QStringList("[Attenzione] Inserire un valore valido compreso tra 1 e 90"));
    }
    QCOMPARE(v.metti("5"), QString("txtestr_1"));
    QCOMPARE(v.metti(" 5"), QString("txtestr_2"));    // the right-hand place of the mask: another text
    QCOMPARE(v.metti("90x1"), QString("txtestr_3"));  // two digits and nothing else can be typed
    QCOMPARE(v.numeri(0, 3), QString("5   5 90"));
    v.scrivi("1");
    v.premi(Qt::Key_S, Qt::AltModifier);  // the fields after it were never left
    QCOMPARE(v.detti(), QStringList("[Attenzione] Sei sicuro di voler salvare l'estrazione"));
    QCOMPARE(v.failures(), QList<int>{13});
    v.usa("txtestr_4").setFocus();
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.aperte(), QStringList());
  }

  void aDrawIsWalkedToFoundCorrectedAndDeletedWithKeys() {
    Estrazioni v("mnu1Modifica");
    QCOMPARE(v.vista(), QString("30 12/3/2005: 30 31 0 0 0"));
    v.usa("VScroll1").setFocus();
    for (const auto& [tasto, vista] : {std::pair{Qt::Key_PageUp, "20 12/3/2005: 20 21 0 0 0"},
                                       {Qt::Key_Up, "19 12/3/2005: 19 20 0 0 0"},
                                       {Qt::Key_Home, "1 3/3/1946: 1 2 0 0 0"}}) {
      v.premi(tasto);
      QCOMPARE(v.vista(), QString(vista));
    }
    v.scegli("mnuUtility3");
    v.premi(Qt::Key_F4, Qt::ControlModifier);
    QCOMPARE(v.vista(), QString("30 12/3/2005: 30 31 0 0 0"));  // coming back shows the newest draw
    v.p.servizi.digitato = "29";
    v.premi(Qt::Key_T, Qt::AltModifier);
    v.clicca("txtestr_0");
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("255");  // no test for a range, and none for duplicates
    v.premi(Qt::Key_Return);
    v.scrivi("9");
    v.premi(Qt::Key_Enter);
    QCOMPARE(v.fuoco(), QString("txtestr_2"));
    v.premi(Qt::Key_S, Qt::AltModifier);  // shared with "Esci": the focus goes there, no more
    v.premi(Qt::Key_Return);
    const auto archivio = ApriArchivio(v.p.cartella());
    QVERIFY(archivio(29, 1, 1) == 255 && archivio(29, 1, 2) == 9);
    QCOMPARE(v.detti(), QStringList("[Attenzione] Sei sicuro di voler modificare l'estrazione corrente"));
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList("[Attenzione] Sei sicuro di voler cancellare l'estrazione selezionata"));
    QCOMPARE(v.aperte(), QStringList("Modifica Estrazione"));
    QCOMPARE(v.vista(), QString("29 12/3/2005: 30 31 0 0 0"));
    v.clicca("btnAnnulla");
    QCOMPARE(v.aperte(), QStringList());
  }
};

QTEST_MAIN(EstrazioniGuiTest)
#include "estrazioni_gui_test.moc"
