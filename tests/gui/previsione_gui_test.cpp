#include <QComboBox>
#include <QScrollBar>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

const QString kRiga(35, '_');
constexpr const char* kCampi[] = {"txtNum", "txtRuote", "cmbColpi", "txtAmbate", "txtAmbi", "txtSup"};

/// The prediction editor over 133 draws, the last with 12 on Bari.
struct Previsione899 : PrincipaleProva {
  Previsione899(const char* voce, const std::vector<SlotProva>& slot) {
    archivioDi(133, "133 Ba 12").scrivi(p);
    auto metodo = metodoProva(slot);
    metodo(2, kCampoData, 1) = 5;
    metodo(2, kCampoData, 2) = 11;
    metodo(2, kCampoData, 3) = 20;
    metodo(2, kCampoData, 4) = 4;
    ScriviMetodo(p.cartella(), "Metodo 1", metodo);
    scegli(voce);
  }
  /// Number and date of the draw shown, then the texts of the prediction.
  [[nodiscard]] QString vista() const {
    QStringList testi = {testo("lblnestr") + " del " + testo("lbldataestr")};
    for (const auto* campo : kCampi) testi << testo(campo);
    return testi.join('|');
  }
};

/// Sets cells of a method file from one position on, where the format puts them.
void riempi(std::string& file, int slot, int campo, int pos, std::initializer_list<int> celle) {
  for (const int cella : celle)
    file.at(static_cast<std::size_t>(slot - 1 + 10 * campo + 70 * (pos++ - 1))) = static_cast<char>(cella);
}

}  // namespace

class PrevisioneGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aPredictionTypedWithKeysIsStoredAndTheCheckReportsIt() {
    Previsione899 v("mnuGestione21", {});
    auto atteso = v.p.contenuto("Metodi/Metodo 1.dat");
    QCOMPARE(v.aperte(), QStringList("Inserisci Previsione"));
    QVERIFY(!v.siVede("Frame10") && !v.siVede("btnElimina"));
    QCOMPARE(v.vista(), QString("133 del 12/3/2005|||10|||"));
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
    QCOMPARE(v.fuoco(), QString("btnElabora"));
    v.premi(Qt::Key_Space);
    QCOMPARE(v.detti(), QStringList("[Vaticlo] La previsione è stata salvata!"));
    riempi(atteso, 1, 0, 1, {1, 32, 89, 9, 12, 34});
    riempi(atteso, 1, 1, 1, {12, 3, 20, 5});
    riempi(atteso, 1, 2, 1, {1, 12, 11});
    riempi(atteso, 1, 3, 1, {9});
    riempi(atteso, 1, 4, 1, {12, 34});
    riempi(atteso, 1, 5, 1, {12, 34, 99, 5, 6, 99});
    riempi(atteso, 1, 6, 1, {1, 2, 3, 99});
    QVERIFY(v.p.contenuto("Metodi/Metodo 1.dat") == atteso);
    QCOMPARE(v.aperte(), QStringList("Inserisci Previsione"));
    QCOMPARE(v.vista(), QString("133 del 12/3/2005|||10|||"));
    QCOMPARE(v.testo("cmbMetodo"), QString());

    v.scegli("mnuMetodi");
    QCOMPARE(v.testo("RichTextBox1"), QString());
    QTRY_COMPARE(v.fuoco(), QString("VScroll1"));
    v.premi(Qt::Key_Up);
    QCOMPARE(v.testo("RichTextBox1").trimmed(),
             QStringList({"Previsione n.°1", " Metodo: Metodo 1",
                          " Numero di Telefono di previsione: 899.12.34", " Colpi ancora in gioco: 8",
                          " Ruote: Ba-Naz-Tutte", " Ambate: 12-34", " Ambi Secchi: 12-34;5-6",
                          " Sorti Superiori: 1-2-3", "", " Esito:", " Ambata 12 Ba al 1°colpo", kRiga})
                 .join('\n'));
  }

  void aStoredPredictionIsChosenChangedAndKeepsItsSlot() {
    const SlotProva altra = {.estrazione = 101, .ruote = {3}, .ambate = {9}};
    Previsione899 v("mnuGestione22", {altra,
                                      {.estrazione = 120,
                                       .telefono = {89, 9, 5},
                                       .ruote = {1, 12},
                                       .colpi = 4,
                                       .ambate = {7, 8},
                                       .ambi = {1, 2, 99, 3, 4, 99},
                                       .sup = {5, 6, 7, 99}},
                                      altra});
    auto atteso = v.p.contenuto("Metodi/Metodo 1.dat");
    QCOMPARE(v.aperte(), QStringList("Modifica Previsione"));
    v.premi(Qt::Key_Down);  // the method, chosen from its list
    QCOMPARE(v.testo("cmbMetodo"), QString("Metodo 1"));
    v.premi(Qt::Key_Tab);
    QCOMPARE(v.usa<QComboBox>("cmbPrevisione").count(), 3);
    v.premi(Qt::Key_Down, {}, 2);
    QCOMPARE(v.testo("cmbPrevisione"), QString("Previsione n.2 del 05/11//2004"));
    QCOMPARE(v.vista(), QString("120 del 12/3/2005|899.05|Ba-Tutte|4|7;8|1-2;3-4|5-6-7"));
    QCOMPARE(v.usa<QScrollBar>("VScroll1").value(), 134);  // it does not follow

    v.premi(Qt::Key_Tab, {}, 6);
    QCOMPARE(v.fuoco(), QString("txtAmbi"));
    v.premi(Qt::Key_Delete);
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList("[Vaticlo] La previsione è stata salvata!"));
    riempi(atteso, 2, 1, 1, {12, 3, 20, 5});
    riempi(atteso, 2, 5, 1, {0, 0, 0, 0, 0, 0});
    QVERIFY(v.p.contenuto("Metodi/Metodo 1.dat") == atteso);
    QCOMPARE(v.aperte(), QStringList("Modifica Previsione"));
    QVERIFY(v.siVede("Frame10"));
    QCOMPARE(v.testo("cmbPrevisione") + v.vista(), QString("133 del 12/3/2005|||10|||"));
  }

  void aDeleteAsksAndThenAlwaysFails() {
    Previsione899 v("mnuGestione22", {{.estrazione = 101, .ruote = {3}, .ambate = {9}}});
    const auto prima = v.p.contenuto("Metodi/Metodo 1.dat");
    v.clicca("btnElimina");
    QCOMPARE(v.detti(), QStringList("[Attenzione] Nessuna previsione selezionata!"));
    v.usa("cmbMetodo").setFocus();
    v.premi(Qt::Key_Down);
    v.premi(Qt::Key_Tab);
    v.premi(Qt::Key_Down);
    v.clicca("btnElimina");
    QCOMPARE(v.detti(), QStringList({"[Attenzione] Sicuro di eliminare la previsione?",
                                     "[Attenzione] Errore nell'eliminaizione della previsione!"}));
    QVERIFY(v.p.contenuto("Metodi/Metodo 1.dat") == prima);
    QCOMPARE(v.testo("txtAmbate"), QString("9"));
    v.clicca("btnCancella");
    QCOMPARE(v.aperte(), QStringList());
  }

  void aRefusedPredictionStaysInTheWindow() {
    Previsione899 v("mnuGestione21", {});
    const auto prima = v.p.contenuto("Metodi/Metodo 1.dat");
    v.premi(Qt::Key_Down);
    v.usa("txtRuote").setFocus();
    v.scrivi("Ba - Ca");
    v.usa("txtAmbate").setFocus();
    v.scrivi("300");
    v.premi(Qt::Key_S, Qt::AltModifier);
    v.clicca("txtRuote");
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("Ba");
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList({"[Attenzione] Errore nell'inserimento delle ruote!",
                                     "[Attenzione] Errore nella creazione del metodo!"}));
    QCOMPARE(v.vista(), QString("133 del 12/3/2005||Ba|10|300||"));
    QVERIFY(v.p.contenuto("Metodi/Metodo 1.dat") == prima);
  }
};

QTEST_MAIN(PrevisioneGuiTest)
#include "previsione_gui_test.moc"
