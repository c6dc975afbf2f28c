#include <QComboBox>
#include <QScrollBar>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// The prediction editor over 133 draws, the last with 12 on Bari.
struct Editore : PrincipaleProva {
  Editore(const char* voce, const std::vector<SlotProva>& slot) {
    archivioDi(133, "133 Ba 12").scrivi(p);
    scriviMetodoProva(p, "Metodo 1", slot);
    scegli(voce);
  }
  /// Number and date of the draw shown, then the texts of the prediction.
  [[nodiscard]] QString vista() const {
    QStringList testi = {testo("lblnestr") + " del " + testo("lbldataestr")};
    for (const char* campo : {"txtNum", "txtRuote", "cmbColpi", "txtAmbate", "txtAmbi", "txtSup"})
      testi << testo(campo);
    return testi.join('|');
  }
  [[nodiscard]] bool nascosto(const char* nome) const {
    return figlia().findChild<QWidget*>(nome)->isHidden();
  }
};

const QString kNuova = "133 del 12/3/2005|||10|||";
const QStringList kSalvata = {"[Vaticlo] La previsione è stata salvata!"};

}  // namespace

class PrevisioneGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aPredictionTypedWithKeysIsStoredAndTheCheckReportsIt() {
    Editore v("mnuGestione21", {});
    QCOMPARE(v.aperte(), QStringList("Inserisci Previsione"));
    QVERIFY(v.nascosto("Frame10") && v.nascosto("btnElimina"));
    QCOMPARE(v.vista(), kNuova);
    QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
    v.scrivi("Metodo 1");
    v.premi(Qt::Key_Tab);
    QCOMPARE(v.fuoco(), QString("VScroll1"));
    v.premi(Qt::Key_Up);
    for (const char* testo : {"899.12.34", "ba-TUTTE-Naz", "9", "12;34", "12-34;5-6", "1-2-3"}) {
      v.premi(Qt::Key_Tab);
      v.scrivi(testo);
    }
    QCOMPARE(v.vista(), QString("132 del 12/3/2005|899.12.34|ba-TUTTE-Naz|9|12;34|12-34;5-6|1-2-3"));
    v.premi(Qt::Key_Tab);
    v.premi(Qt::Key_Space);
    QCOMPARE(v.detti(), kSalvata);
    QCOMPARE(v.aperte(), QStringList("Inserisci Previsione"));
    QCOMPARE(v.testo("cmbMetodo") + v.vista(), kNuova);

    v.scegli("mnuMetodi");
    QCOMPARE(v.testo("RichTextBox1"), QString());
    v.premi(Qt::Key_Up);
    QCOMPARE(
        v.testo("RichTextBox1").split('\n'),
        QStringList({" Previsione n.°1", " Metodo: Metodo 1", " Numero di Telefono di previsione: 899.12.34",
                     " Colpi ancora in gioco: 8", " Ruote: Ba-Naz-Tutte", " Ambate: 12-34",
                     " Ambi Secchi: 12-34;5-6", " Sorti Superiori: 1-2-3", "",
                     " Esito:", " Ambata 12 Ba al 1°colpo", QString(35, '_'), ""}));
  }

  void aStoredPredictionIsChosenChangedAndKeepsItsSlot() {
    const SlotProva altra = {.estrazione = 101, .ruote = {3}, .ambate = {9}};
    const SlotProva scelta = {120, {89, 9, 5}, {1, 12}, 4, {7, 8}, {1, 2, 99, 3, 4, 99}, {5, 6, 7, 99}};
    Editore v("mnuGestione22", {altra, scelta, altra});
    QCOMPARE(v.aperte(), QStringList("Modifica Previsione"));
    const auto scegliSeconda = [&] {
      QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
      v.premi(Qt::Key_Down);
      v.premi(Qt::Key_Tab);
      QCOMPARE(v.fuoco(), QString("cmbPrevisione"));
      QCOMPARE(v.usa<QComboBox>("cmbPrevisione").count(), 3);
      v.premi(Qt::Key_Down, {}, 2);
    };
    scegliSeconda();
    QCOMPARE(v.vista(), QString("120 del 12/3/2005|899.05|Ba-Tutte|4|7;8|1-2;3-4|5-6-7"));
    QCOMPARE(v.usa<QScrollBar>("VScroll1").value(), 134);  // it does not follow
    v.premi(Qt::Key_Tab, {}, 6);
    QCOMPARE(v.fuoco(), QString("txtAmbi"));
    v.premi(Qt::Key_Delete);
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), kSalvata);
    QCOMPARE(v.testo("cmbPrevisione") + v.vista(), kNuova);
    scegliSeconda();
    QCOMPARE(v.testo("cmbPrevisione"), QString("Previsione n.2 del 12/03//2005"));
    QCOMPARE(v.vista(), QString("120 del 12/3/2005|899.05|Ba-Tutte|4|7;8||5-6-7"));

    v.clicca("btnElimina");
    QCOMPARE(v.detti(), QStringList({"[Attenzione] Sicuro di eliminare la previsione?",
                                     "[Attenzione] Errore nell'eliminaizione della previsione!"}));
    v.premi(Qt::Key_Tab);
    QCOMPARE(v.fuoco(), QString("btnCancella"));
    v.premi(Qt::Key_Space);
    QCOMPARE(v.aperte(), QStringList());
  }
};

QTEST_MAIN(PrevisioneGuiTest)
#include "previsione_gui_test.moc"
