#include <QComboBox>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// The check dialog over ten draws, 12 on Bari in draw 9: two predictions on draw 8, one on draw 10.
struct Vaticla : PrincipaleProva {
  Vaticla() {
    archivioDi(10, "9 Ba 12").data(5, 1, 6, 2005).scrivi(p);
    scriviMetodoProva(p, "Metodo 1", {{.estrazione = 8, .ruote = {1}, .colpi = 1, .ambate = {12}}});
    scriviMetodoProva(p, "Metodo 2",
                      {{.estrazione = 8, .ruote = {2}, .colpi = 5, .ambate = {7}},
                       {.estrazione = 10, .ruote = {11}, .colpi = 3, .ambi = {8, 9, 99}}});
    scegli("mnuMetodi");
  }
  QString cerca(const char* digitato) {
    p.servizi.digitato = digitato;
    clicca("btnTrova");
    return vista();
  }
  /// Draw, counters (giocabili, vincenti, in gioco), then whose predictions the report has and how they
  /// ended.
  [[nodiscard]] QString vista() const {
    QStringList parole = {testo("lblnestr") + ':', testo("txtgiocabili"), testo("txtvincenti"),
                          testo("txtingioco")};
    for (const auto& riga : testo("RichTextBox1").split('\n'))
      if (riga.contains("Metodo:") || riga.contains("colpo") || riga == " In gioco")
        parole << riga.trimmed().remove("Metodo: ");
    return parole.join(' ');
  }
};

const QString kDue = "8: 2 1 1 Metodo 1 Ambata 12 Ba al 1°colpo Metodo 2 In gioco";
const QString kPrimo = "8: 1 1 0 Metodo 1 Ambata 12 Ba al 1°colpo";
const QString kSecondo = "8: 1 0 1 Metodo 2 In gioco";
const QString kDieci = "10: 1 0 1 Metodo 2 In gioco";

}  // namespace

class VaticlaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void eachMoveOfTheBarRunsTheCheckOfTheDrawShown() {
    Vaticla v;
    QTRY_COMPARE(v.fuoco(), QString("VScroll1"));
    QCOMPARE(v.vista(), kDieci);
    for (const auto& [tasto, vista] : {std::pair{Qt::Key_Up, QString("9: 0 0 0")},
                                       {Qt::Key_Up, kDue},
                                       {Qt::Key_Home, "1: 0 0 0"},
                                       {Qt::Key_Down, "1: 0 0 0"},
                                       {Qt::Key_End, kDieci}}) {
      v.premi(tasto);
      QCOMPARE(v.vista(), vista);
    }
    QCOMPARE(v.cerca("1/6/2005"), QString("5: 0 0 0"));
    QCOMPARE(v.cerca("9"), QString("9: 0 0 0"));
    v.clicca("txtestr_1");
    v.scrivi("5");  // the fields only display
    QCOMPARE(v.numeri(0, 3), QString("12 0 0"));
    QCOMPARE(v.usa("txtestr_54").palette().color(QPalette::Base), QColor(192, 192, 192));
  }

  void theReportIsPrintedAfterAYes() {
    Vaticla v;
    for (const auto risposta : {Risposta::No, Risposta::Si}) {
      v.p.servizi.risposta = risposta;
      v.clicca("btnStampa");
    }
    QCOMPARE(v.detti(), QStringList(2, "[Ambolino] Stampo la previsione?"));
    QVERIFY(v.p.servizi.stampati == std::vector{v.testo("RichTextBox1").toStdString()});
    v.clicca("btnAnnulla");
    QCOMPARE(v.aperte(), QStringList());
  }

  void tuttiAndScegliSayWhichMethodsAreJudged() {
    Vaticla v;
    QCOMPARE(v.cerca("8"), kDue);
    const auto* lista = v.figlia().findChild<QComboBox*>("cmbMetodo");
    QVERIFY(!lista->isEnabled());
    v.usa("optSelMetodo_0").setFocus();
    v.premi(Qt::Key_Right);
    QCOMPARE(v.testo("cmbMetodo"), QString("Metodo 1"));
    QCOMPARE(v.vista(), kPrimo);
    v.usa("cmbMetodo").setFocus();
    v.premi(Qt::Key_Down);
    QCOMPARE(v.vista(), kSecondo);
    v.clicca("optSelMetodo_0");
    QVERIFY(!lista->isEnabled());
    QCOMPARE(v.testo("cmbMetodo"), QString("Metodo 2"));
    QCOMPARE(v.vista(), kDue);
    v.clicca("optSelMetodo_1");
    QCOMPARE(v.vista(), kPrimo);  // its first entry again
  }

  void aTypedNameCountsFromTheNextRunOn() {
    for (const auto& [nome, esito] : {std::pair{"Metodo 2", kSecondo}, {"Met", "8: 0 0 0"}}) {
      Vaticla v;
      v.cerca("8");
      v.clicca("optSelMetodo_1");
      v.usa("cmbMetodo").setFocus();
      v.premi(Qt::Key_A, Qt::ControlModifier);
      v.scrivi(nome);
      v.premi(Qt::Key_Return);
      v.premi(Qt::Key_Tab);
      QCOMPARE(v.testo("cmbMetodo"), QString(nome));
      QCOMPARE(v.vista(), kPrimo);
      v.usa("VScroll1").setFocus();
      v.premi(Qt::Key_Up);
      v.premi(Qt::Key_Down);
      QCOMPARE(v.vista(), esito);
    }
  }

  void anEmptyArchiveRunsNoCheck() {
    PrincipaleProva v;
    v.scegli("mnuMetodi");
    QCOMPARE(v.testo("lblnestr") + ' ' + v.testo("lbldataestr"), QString("1 0/0/000"));
    QCOMPARE(v.testo("txtgiocabili") + v.testo("txtvincenti") + v.testo("RichTextBox1"), QString());
    QVERIFY(!v.p.esiste("Esiti.txt"));
  }
};

QTEST_MAIN(VaticlaGuiTest)
#include "vaticla_gui_test.moc"
