#include "gui/finestra_prova.h"
#include "methods/testi_campi.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// A window over 133 draws, 12 on Bari in draw 132.
struct Previsioni : PrincipaleProva {
  explicit Previsioni(const char* voce, const std::vector<SlotProva>& metodo1 = {},
                      const std::vector<SlotProva>& metodo2 = {}) {
    archivioDi(133, "132 Ba 12").scrivi(p);
    scriviMetodoProva(p, "Metodo 1", metodo1);
    scriviMetodoProva(p, "Metodo 2", metodo2);
    scegli(voce);
  }
  /// What the editor shows: the number of the draw, then the texts of the prediction.
  [[nodiscard]] QString previsione() const {
    QStringList testi = {testo("lblnestr")};
    for (const char* campo : {"txtNum", "txtRuote", "cmbColpi", "txtAmbate", "txtAmbi", "txtSup"})
      testi << testo(campo);
    return testi.join('|');
  }
  /// What the check shows: draw, counters (giocabili, vincenti, in gioco), then whose predictions the report
  /// has and how they ended.
  [[nodiscard]] QString esiti() const {
    QStringList parole = {testo("lblnestr") + ':', testo("txtgiocabili"), testo("txtvincenti"),
                          testo("txtingioco")};
    for (const auto& riga : testo("RichTextBox1").split('\n'))
      if (riga.contains("Metodo:") || riga.contains("colpo") || riga == " In gioco")
        parole << riga.trimmed().remove("Metodo: ");
    return parole.join(' ');
  }
};

const QStringList kSalvata = {"[Vaticlo] La previsione è stata salvata!"};

}  // namespace

class PrevisioniGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aPredictionIsTypedWithKeysInTheOrderOfTheFields() {
    Previsioni v("mnuGestione21");
    QVERIFY(v.figlia().findChild<QWidget*>("Frame10")->isHidden());
    QVERIFY(v.figlia().findChild<QWidget*>("btnElimina")->isHidden());
    QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
    v.scrivi("Metodo 1");
    v.premi(Qt::Key_Tab);
    v.premi(Qt::Key_Up);  // on the bar
    for (const char* testo : {"899.12.34", "ba-TUTTE-Naz", "9", "12;34", "12-34;5-6", "1-2-3"}) {
      v.premi(Qt::Key_Tab);
      v.scrivi(testo);
    }
    QCOMPARE(v.previsione(), QString("132|899.12.34|ba-TUTTE-Naz|9|12;34|12-34;5-6|1-2-3"));
    v.premi(Qt::Key_Tab);
    v.premi(Qt::Key_Space);
    QCOMPARE(v.detti(), kSalvata);
    QCOMPARE(v.aperte(), QStringList("Inserisci Previsione"));
    QCOMPARE(v.testo("cmbMetodo") + v.previsione(), QString("133|||10|||"));
    const auto salvata = leggiTesti(LeggiMetodo(v.p.cartella(), "Metodo 1"), 1);
    QCOMPARE(salvata.numero + '|' + salvata.ruote + '|' + salvata.colpi, "899.12.34|Ba-Tutte-Naz|9");
    QCOMPARE(salvata.ambate + '|' + salvata.ambi + '|' + salvata.sup, "12;34|12-34;5-6|1-2-3");
  }

  void aStoredPredictionIsChosenAndChangedWithKeys() {
    const SlotProva altra = {.estrazione = 101, .ruote = {3}, .ambate = {9}};
    const SlotProva scelta = {120, {89, 9, 5}, {1, 12}, 4, {7, 8}, {1, 2, 99, 3, 4, 99}, {5, 6, 7, 99}};
    Previsioni v("mnuGestione22", {altra, scelta, altra});
    QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
    v.premi(Qt::Key_Down);
    v.premi(Qt::Key_Tab);
    v.premi(Qt::Key_Down, {}, 2);
    QCOMPARE(v.previsione(), QString("120|899.05|Ba-Tutte|4|7;8|1-2;3-4|5-6-7"));
    v.premi(Qt::Key_Tab, {}, 6);
    QCOMPARE(v.fuoco(), QString("txtAmbi"));
    v.premi(Qt::Key_Delete);
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), kSalvata);
    const auto salvata = leggiTesti(LeggiMetodo(v.p.cartella(), "Metodo 1"), 2);
    QCOMPARE(salvata.ambate + '|' + salvata.ambi + '|' + salvata.sup, "7;8||5-6-7");
    v.usa("btnCancella").setFocus();
    v.premi(Qt::Key_Space);
    QCOMPARE(v.aperte(), QStringList());
  }

  void theCheckFollowsTheBarTheSearchAndTheChoiceOfMethods() {
    Previsioni v("mnuMetodi", {{.estrazione = 131, .ruote = {1}, .colpi = 1, .ambate = {12}}},
                 {{.estrazione = 131, .ruote = {2}, .colpi = 5, .ambate = {7}}});
    const QString due = "131: 2 1 1 Metodo 1 Ambata 12 Ba al 1°colpo Metodo 2 In gioco";
    const QString primo = "131: 1 1 0 Metodo 1 Ambata 12 Ba al 1°colpo";
    QTRY_COMPARE(v.fuoco(), QString("VScroll1"));
    QCOMPARE(v.esiti(), QString("133: 0 0 0"));
    v.premi(Qt::Key_Up, {}, 2);
    QCOMPARE(v.esiti(), due);
    v.p.servizi.digitato = "131";
    v.clicca("btnTrova");
    v.clicca("txtestr_1");
    v.scrivi("5");  // the fields only display
    v.clicca("txtgiocabili");
    v.scrivi("5");
    QCOMPARE(v.numeri(0, 3) + v.testo("txtgiocabili"), QString("0 0 02"));
    QCOMPARE(v.usa("txtestr_54").palette().color(QPalette::Base), QColor(192, 192, 192));

    QVERIFY(!v.visibile("cmbMetodo").isEnabled());
    v.clicca("optSelMetodo_1");
    QCOMPARE(v.esiti(), primo);
    v.usa("cmbMetodo").setFocus();
    v.premi(Qt::Key_Down);
    QCOMPARE(v.esiti(), QString("131: 1 0 1 Metodo 2 In gioco"));
    v.premi(Qt::Key_Up);
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("Met");
    v.premi(Qt::Key_Tab);
    QCOMPARE(v.testo("cmbMetodo") + v.esiti(), "Met" + primo);  // a name counts from the next run on
    v.usa("VScroll1").setFocus();
    v.premi(Qt::Key_Up);
    v.premi(Qt::Key_Down);
    QCOMPARE(v.esiti(), QString("131: 0 0 0"));
    v.clicca("optSelMetodo_0");
    QCOMPARE(v.esiti(), due);
    v.clicca("btnAnnulla");
    QCOMPARE(v.aperte(), QStringList());
  }
};

QTEST_MAIN(PrevisioniGuiTest)
#include "previsioni_gui_test.moc"
