#include <QDateEdit>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QToolBar>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// The statistics dialog over 110 draws: of method "M" the prediction of draw 102 wins, that of 109 is in
/// play.
struct Statistica : PrincipaleProva {
  Statistica() {
    archivioDi(110, "103 Ba 7").data(104, 20, 3, 2005).scrivi(p);
    scriviMetodoProva(p, "M",
                      {{.estrazione = 102, .ruote = {1}, .colpi = 2, .ambate = {7}},
                       {.estrazione = 109, .ruote = {1}, .colpi = 2, .ambate = {8}}});
    scegli("mnu1metodo1");
  }
  void intervallo(const char* inizio, const char* fine) {
    for (const auto& [nome, testo] : {std::pair{"txtestr_0", inizio}, {"txtestr_1", fine}}) {
      usa<QLineEdit>(nome).selectAll();
      usa<QLineEdit>(nome).setFocus();
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
    return testo +
           (finestra.menuBar()->isEnabled() && finestra.findChild<QToolBar*>()->isEnabled() ? "menu" : "");
  }
};

}  // namespace

class StatisticaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aRunIsStoppedByKeyAndByMouse() {
    Statistica v;
    QCOMPARE(v.stato(), QString("RichTextBox1 Elabora Cancella menu"));
    v.intervallo("101", "110");
    const std::pair<const char*, std::function<void()>> modi[] = {
        {"its letter", [&] { v.premi(Qt::Key_I, Qt::AltModifier); }},
        {"the focus, which goes there", [&] { v.premi(Qt::Key_Space); }},
        {"the mouse", [&] { v.clicca("btnStop"); }}};
    for (const auto& [come, ferma] : modi) {
      QString durante;
      v.p.servizi.pause = 0;
      v.p.servizi.allaPausa = [&, &ferma = ferma] {
        QCoreApplication::processEvents();
        if (v.p.servizi.pause != 3) return;
        durante = v.stato();
        ferma();
      };
      v.premi(Qt::Key_E, Qt::AltModifier);
      QCOMPARE(durante, QString("prgbar Stop "));
      QVERIFY2(v.p.servizi.pause == 3, come);
      QCOMPARE(v.stato(), QString("Elabora Cancella menu"));
      QCOMPARE(v.p.contenuto("Stat.txt"), std::string());
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

  void aDatePickedByKeyFillsItsNumberAndNoDateLiesAhead() {
    Statistica v;
    auto& inizio = v.usa<QDateEdit>("DTInizio");
    QCOMPARE(v.testo("DTInizio") + ' ' + v.testo("DTFine"), QString("03/01/2000 14/03/2026"));
    auto* cifre = inizio.findChild<QLineEdit*>();
    QTest::mouseClick(cifre, Qt::LeftButton, {}, QPoint(cifre->fontMetrics().horizontalAdvance("03/0"), 5));
    v.scrivi("5");
    QCOMPARE(v.testo("DTInizio"), QString("03/05/2000"));
    inizio.setSelectedSection(QDateEdit::DaySection);
    v.scrivi("20032005");
    QCOMPARE(v.testo("txtestr_0"), QString("104"));
    QCOMPARE(inizio.maximumDate(), QDate(2026, 3, 14));
  }

  void theListsOpenInOneWindowThatReadsItsFileAtEachActivation() {
    Statistica v;
    v.intervallo("101", "110");
    v.premi(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(v.stato(), QString("RichTextBox1 Elabora Vincite Prev Stampa Cancella menu"));
    QVERIFY(v.testo("RichTextBox1").contains("Previsioni Giocabili: 2\n"));
    v.premi(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(v.figlia().windowTitle(), QString("Previsioni ancora in gioco"));
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

  void theTotalsArePrintedAfterAQuestion() {
    Statistica v;
    v.intervallo("101", "110");
    v.clicca("btnElabora");
    QCOMPARE(v.fuoco(), QString("btnElabora"));
    v.clicca("btnStampa");
    QCOMPARE(v.detti(), QStringList("[Ambolino] Stampo la statistica?"));
    QCOMPARE(QString::fromStdString(v.p.servizi.stampati.at(0)), v.testo("RichTextBox1"));
  }
};

QTEST_MAIN(StatisticaGuiTest)
#include "statistica_gui_test.moc"
