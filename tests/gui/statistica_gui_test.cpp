#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QWheelEvent>

#include "dialogs/frm_aggiungi.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// The statistics dialog over 110 draws: of method "M" the prediction of draw 102 wins, that of 105 loses,
/// that of 109 is in play.
struct Statistica : PrincipaleProva {
  Statistica() {
    auto archivio = archivioDi(110, "103 Ba 7");
    archivio.data(1, 3, 1, 1899).data(2, 10, 1, 1999).data(3, 29, 1, 2000).data(4, 30, 3, 2000);
    archivio.data(5, 31, 3, 2000).data(104, 20, 3, 2005).scrivi(p);
    scriviMetodoProva(p, "M",
                      {{.estrazione = 102, .ruote = {1}, .colpi = 2, .ambate = {7}},
                       {.estrazione = 105, .ruote = {1}, .colpi = 2, .ambate = {7}},
                       {.estrazione = 109, .ruote = {1}, .colpi = 2, .ambate = {8}}});
    scegli("mnu1metodo1");
  }
  void intervallo(const QString& inizio, const QString& fine) {
    for (const auto& [nome, testo] : {std::pair{"txtestr_0", inizio}, {"txtestr_1", fine}}) {
      usa<QLineEdit>(nome).selectAll();
      usa<QLineEdit>(nome).setFocus();
      premi(Qt::Key_Delete);
      scrivi(testo);
    }
  }
  /// What can be seen and pressed.
  [[nodiscard]] QString stato() const {
    QString testo;
    for (const char* nome : {"prgbar", "RichTextBox1"})
      if (figlia().findChild<QWidget*>(nome)->isVisible()) testo += QString(nome) + ' ';
    for (const char* nome : {"btnElabora", "btnStop", "btnVincite", "btnPrev", "btnStampa", "btnCancella"})
      if (visibile(nome).isEnabled()) testo += QString(nome).mid(3) + ' ';
    for (const auto* altra : finestra.findChild<QMdiArea*>()->subWindowList())
      if (altra != &figlia() && altra->isEnabled()) testo += "accanto ";
    return testo + (finestra.findChild<QWidget*>("inizio")->isEnabled() ? "inizio " : "") +
           (finestra.menuBar()->isEnabled() && finestra.findChild<QToolBar*>()->isEnabled() ? "menu" : "");
  }
};

}  // namespace

class StatisticaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aRunIsStoppedByKeyAndByMouseAndNothingElseIsDoneMeanwhile() {
    Statistica v;
    v.scegli("mnu1Aggiungi");
    auto* accanto = &v.visibile("btnEsci");
    v.finestra.findChild<QMdiArea*>()->activatePreviousSubWindow();
    QCOMPARE(v.stato(), QString("RichTextBox1 Elabora Cancella accanto inizio menu"));
    v.intervallo("101", "110");
    for (const bool conTasti : {true, false}) {
      QString durante;
      v.p.servizi.pause = 0;
      v.p.servizi.allaPausa = [&] {
        QCoreApplication::processEvents();
        if (v.p.servizi.pause != 3) return;
        durante = v.stato();
        QTest::mouseClick(accanto, Qt::LeftButton);
        v.principale.apriVerifica(*v.principale.aperta<frmAggiungi>(), "M", 102);
        conTasti ? v.premi(Qt::Key_Space) : v.clicca("btnStop");  // the focus goes there
      };
      v.usa("btnElabora").setFocus();
      v.premi(Qt::Key_Return);
      QCOMPARE(durante, QString("prgbar Stop "));
      QCOMPARE(v.p.servizi.pause, 3);
      QCOMPARE(v.stato(), QString("Elabora Cancella accanto inizio menu"));
      QCOMPARE(v.fuoco(), QString("btnElabora"));
      QCOMPARE(v.p.contenuto("Stat.txt"), std::string());
      QVERIFY(v.p.contenuto("Vincite.txt").starts_with(" Previsione n."));  // of the draws before the stop
    }
  }

  void closingTheMainWindowStopsTheRunFirst() {
    Statistica v;
    v.intervallo("101", "110");
    v.p.servizi.allaPausa = [&] {
      if (v.p.servizi.pause == 2) v.finestra.close();
      QVERIFY(v.finestra.isVisible());
      QCoreApplication::processEvents();
    };
    v.clicca("btnElabora");
    QCOMPARE(v.p.servizi.pause, 2);
    QTRY_VERIFY(!v.finestra.isVisible());
  }

  void theButtonsFollowWhetherARangeIsTakenAndWhatIsFoundInIt() {
    Statistica v;
    v.intervallo("6", "5");
    v.clicca("btnElabora");
    QCOMPARE(v.detti().size(), 1);
    QCOMPARE(v.stato(), QString("Elabora Cancella inizio menu"));
    QCOMPARE(v.p.contenuto("Stat.txt"), std::string("\r\n"));
    for (const auto& [fine, mostrati, liste] :
         {std::tuple{"1", "1 1", ""}, {"111", "1 110", "Vincite Prev "}}) {
      v.intervallo("0", fine);
      v.clicca("btnElabora");
      QCOMPARE(v.testo("txtestr_0") + ' ' + v.testo("txtestr_1"), QString(mostrati));
      QCOMPARE(v.stato(), QString("RichTextBox1 Elabora %1Stampa Cancella inizio menu").arg(liste));
    }
  }

  void aFieldThatIsNoNumberIsNamedAndHasTheFocus() {
    Statistica v;
    for (const auto& [da, a, campo] : {std::tuple{"", "x", "txtestr_0"}, {"1", "x", "txtestr_1"}}) {
      v.intervallo(da, a);
      v.clicca("btnElabora");
      QVERIFY(v.detti().join('|').startsWith(QString("[Attenzione] \"Es.N.\" della data di ") +
                                             (campo == QString("txtestr_0") ? "inizio" : "fine")));
      QCOMPARE(v.fuoco(), QString(campo));
      QCOMPARE(v.stato(), QString("Elabora Cancella inizio menu"));
    }
  }

  void aDatePickedFillsItsNumberAndNoDateLiesAhead() {
    Statistica v;
    QCOMPARE(v.testo("txtestr_0") + ' ' + v.testo("DTInizio"), QString("3 03/01/2000"));
    QCOMPARE(v.testo("txtestr_1") + ' ' + v.testo("DTFine"), QString("110 14/03/2026"));
    for (const auto& [giorno, numero] : {std::pair{"3/1/1899", "1"},
                                         {"9/1/1999", "2"},
                                         {"28/1/2000", "3"},
                                         {"31/1/2000", "5"},  // only days are compared from here on
                                         {"21/3/2005", "110"},
                                         {"1/2/1899", "15001"}}) {
      v.clicca("DTInizio");
      v.scrivi(giorno);
      v.premi(Qt::Key_Tab);
      QCOMPARE(v.testo("txtestr_0"), QString(numero));
    }
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.scrivi("9");
    v.clicca("DTInizio");
    v.scrivi("01.02.1899");
    v.premi(Qt::Key_Tab);
    QCOMPARE(v.testo("txtestr_0"), QString("9"));  // the date that stood there is no change
    for (const int parte : {-50, -50, -20}) {      // a touchpad's, one step in all
      QWheelEvent giro({4, 4}, v.usa("DTInizio").mapToGlobal(QPointF(4, 4)), {}, {0, parte}, Qt::NoButton, {},
                       Qt::ScrollUpdate, false);
      QApplication::sendEvent(&v.usa("DTInizio"), &giro);
    }
    QCOMPARE(v.testo("DTInizio"), QString("01/02/1898"));  // of the year, where the caret is
    v.clicca("DTFine");
    v.scrivi("15/3/2026");
    v.premi(Qt::Key_Return);
    QCOMPARE(v.testo("DTFine"), QString("14/03/2026"));
    QCOMPARE(v.detti().size(), 1);
    v.scrivi("29/1/2000");
    QCOMPARE(v.testo("txtestr_1"), QString("110"));
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.testo("txtestr_1"), QString("3"));
    v.premi(Qt::Key_Return);
    QCOMPARE(v.detti().size(), 1);  // the range, whose start lies after it
  }

  void aRunIsPrintedAndItsListsOpenInOneWindowThatReadsItsFileAtEachActivation() {
    Statistica v;
    v.intervallo("101", "110");
    v.clicca("optSelMetodo_1");
    v.usa("cmbMetodo").setFocus();
    v.premi(Qt::Key_Down, {}, 2);      // over the two that are always offered, to "M"
    QVERIFY(!v.p.esiste("Stat.txt"));  // a choice starts no run
    v.clicca("btnElabora");
    QCOMPARE(v.stato(), QString("RichTextBox1 Elabora Vincite Prev Stampa Cancella inizio menu"));
    QVERIFY(v.testo("RichTextBox1").contains("Previsioni Giocabili: 3\n"));
    auto& totali = v.usa<QPlainTextEdit>("RichTextBox1");
    totali.selectAll();
    v.stampa();
    QVERIFY(!totali.textCursor().hasSelection());
    QCOMPARE(v.detti(), QStringList(2, "[Ambolino] Stampo la statistica?"));
    v.premi(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(v.figlia().windowTitle(), QString("Previsioni ancora in gioco"));
    QCOMPARE(v.figlia().geometry(), QRect(166, 80, 583, 336));
    QVERIFY(v.testo("RichTextBox1").contains(" Colpi ancora in gioco: 1\n"));

    auto& area = *v.finestra.findChild<QMdiArea*>();
    area.activatePreviousSubWindow();
    v.clicca("btnVincite");
    QCOMPARE(v.aperte(), QStringList({"Statistica", "Previsioni ancora in gioco"}));
    QVERIFY(v.testo("RichTextBox1").contains(" Esito:  E 7 Ba ** 1° colpo\n"));
    area.activatePreviousSubWindow();
    v.p.scrivi("Vincite.txt", "altro\r\n");
    area.activateNextSubWindow();
    QCOMPARE(v.testo("RichTextBox1"), QString("altro\n"));
  }
};

QTEST_MAIN(StatisticaGuiTest)
#include "statistica_gui_test.moc"
