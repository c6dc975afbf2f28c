#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include "desktop/carta.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// The check on a draw whose one prediction has a list of bets longer than any pane.
struct Rapporto : PrincipaleProva {
  Rapporto() {
    archivioDi(150).scrivi(p);
    std::vector<int> ambi;
    for (int n = 1; n < 55; ++n) ambi.insert(ambi.end(), {n, n + 1, 99});
    scriviMetodoProva(p, "Mio", {{.estrazione = 149, .ruote = {1}, .colpi = 5, .ambi = ambi}});
    scegli("mnuMetodi");
    premi(Qt::Key_Up);
    area = &usa<QPlainTextEdit>("RichTextBox1");
    area->setFocus();
  }
  [[nodiscard]] QString scelto() const { return area->textCursor().selectedText(); }
  QPlainTextEdit* area;
};

QByteArray contenuto(const QString& file) {
  QFile letto(file);
  return letto.open(QIODevice::ReadOnly) ? letto.readAll() : QByteArray();
}

}  // namespace

class RapportiGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void aPaneBreaksNoLineAndIsCopiedAndSearchedByKeys() {
    Rapporto v;
    QVERIFY(v.area->horizontalScrollBar()->isVisible());
    QCOMPARE(v.area->document()->lineCount(), v.testo("RichTextBox1").count('\n') + 1);
    v.premi(Qt::Key_A, Qt::ControlModifier);
    QVERIFY(v.scelto().contains("54-55"));
    v.stampa();  // the selection is reduced to nothing, and the whole text printed
    QCOMPARE(v.detti(), QStringList(2, "[Ambolino] Stampo la previsione?"));
    QCOMPARE(v.scelto(), QString());
    v.area->setFocus();
    v.premi(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(v.fuoco(), QString("cercaNelTesto"));
    v.scrivi("GIO");
    QList<int> posti;
    for (const auto modificatori : {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier}) {
      QCOMPARE(v.scelto().toLower(), QString("gio"));
      posti << v.area->textCursor().position();
      v.premi(Qt::Key_Return, modificatori);
    }
    QVERIFY(posti[0] < posti[1] && posti[2] == posti[0]);  // two places, and round again
    const int dove = v.area->textCursor().selectionStart();
    v.scrivi("c");  // goes on with the same place
    QCOMPARE(v.area->textCursor().selectionStart(), dove);
    v.scrivi("x");
    v.premi(Qt::Key_Escape);
    QCOMPARE(v.fuoco(), QString("RichTextBox1"));
  }

  void aKeyJumpsToADrawWithPredictionsWhoseOutcomeStandsOut() {
    Rapporto v;
    v.usa<QScrollBar>("VScroll1").setValue(120);
    QCOMPARE(v.testo("lblNota"), QString("Nessuna previsione su questa estrazione"));
    for (const auto tasto : {Qt::Key_PageDown, Qt::Key_PageUp})
      v.premi(tasto, Qt::ControlModifier);  // the pane has the focus
    QCOMPARE(v.testo("lblnestr"), QString("149"));
    const auto riga = v.area->document()->find(" In gioco", 0, QTextDocument::FindCaseSensitively).block();
    QCOMPARE(riga.layout()->formats().size(), 1);
    const auto colore = riga.layout()->formats()[0].format.foreground().color();
    QVERIFY(colore != v.area->palette().color(QPalette::Text));
    QCOMPARE(riga.charFormat().foreground().style(), Qt::NoBrush);  // of the text itself
  }

  void aNumberThatHasWonStandsOutInItsField() {
    PrincipaleProva v;
    archivioDi(110, "103 Ba 7 8").scrivi(v.p);
    scriviMetodoProva(v.p, "Mio", {{.estrazione = 102, .ruote = {1}, .colpi = 3, .ambate = {7}}});
    v.scegli("mnuMetodi");
    v.p.servizi.digitato = "103";
    v.premi(Qt::Key_F3);
    const auto &sette = v.usa("txtestr_0"), &otto = v.usa("txtestr_1");
    QVERIFY(sette.toolTip().startsWith("Ambata 7 Ba al 1°colpo") && otto.toolTip().isEmpty());
    QVERIFY(sette.font().bold() && !otto.font().bold());
    QVERIFY(sette.palette().color(QPalette::Text) != QColor(Qt::black));
    QCOMPARE(otto.palette().color(QPalette::Text), QColor(Qt::black));
  }

  void itsMenuSavesTheWholeText() {
    Rapporto v;
    const QTemporaryDir cartella;
    QStringList voci, domande;
    QTimer risposte;
    connect(&risposte, &QTimer::timeout, this, [&] {
      if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        for (const auto* voce : menu->actions()) voci << voce->text().remove('&').section('\t', 0, 0);
        menu->close();
      }
      if (auto* domanda = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        domande << domanda->text();
        domanda->button(QMessageBox::No)->click();
        return;
      }
      if (auto* scelta = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
        if (!domande.isEmpty()) return scelta->reject();
        scelta->setDirectory(cartella.path());
        scelta->findChild<QLineEdit*>("fileNameEdit")->setText("uscita");
        QMetaObject::invokeMethod(scelta, "accept");
      }
    });
    risposte.start(20);
    QContextMenuEvent evento(QContextMenuEvent::Keyboard, QPoint(5, 5), v.area->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(v.area->viewport(), &evento);
    for (const char* voce :
         {"Copia", "Seleziona tutto", "Trova...", "Salva come PDF...", "Salva come testo..."})
      QVERIFY2(voci.contains(voce), voce);
    for (const char* azione : {"salvaPdf", "salvaTesto"}) v.area->findChild<QAction*>(azione)->trigger();
    QCOMPARE(QString::fromUtf8(contenuto(cartella.filePath("uscita.txt"))), v.testo("RichTextBox1"));
    QVERIFY(contenuto(cartella.filePath("uscita.pdf")).startsWith("%PDF"));
    QVERIFY(salvaOttetti(cartella.filePath("uscita.txt"), "di prima"));
    v.area->findChild<QAction*>("salvaTesto")->trigger();
    QVERIFY(domande.size() == 1 && domande[0].contains("uscita.txt"));
    QCOMPARE(contenuto(cartella.filePath("uscita.txt")), QByteArray("di prima"));
    QVERIFY(!salvaOttetti(cartella.filePath("manca/uscita.txt"), "testo"));
    QVERIFY(!salvaPdf(cartella.filePath("manca/uscita.pdf"), [](auto&) {}));
  }

  void onPaperALineIsBrokenBehindASemicolonOrABlankAlone() {
    const auto entra = [](const QString& riga) { return riga.size() <= 10; };
    for (const auto& [testo, spezzato] : {std::pair{"12-3;4-5\nbreve", "12-3;4-5\nbreve"},
                                          {"12-34;56-78;90-1", "12-34;\n56-78;90-1"},
                                          {" Ambi: 12-34;5-6", " Ambi: \n12-34;5-6"},
                                          {"12-34-56-78-90", "12-34-56-78-90"},
                                          {"12-34-56-78-90;1-2;3", "12-34-56-78-90;\n1-2;3"},
                                          {"", ""}})
      QCOMPARE(spezzaRighe(testo, entra), QString(spezzato));
  }

  void aFolderThatAnotherProgramHoldsIsToldAndTheProgramGoesOn() {
    QString detto;
    QTimer::singleShot(0, this, [&] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        detto = box->text();
        box->accept();
      }
    });
    int fine = 0;
    Confine([&](const RuntimeFailure&) { ++fine; }).esegui([] {
      throw RuntimeFailure(Errore::CartellaOccupata);
    });
    QVERIFY(detto.contains("riprovate") && fine == 0);
  }
};

QTEST_MAIN(RapportiGuiTest)
#include "rapporti_gui_test.moc"
