#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextBrowser>
#include <QToolTip>
#include <QWheelEvent>

#include "dialogs/frm_insprev.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

/// 110 draws, 7 on Bari in draw 108. "Metodo 2" has won there, "Zeta" is in play.
struct Elenchi : PrincipaleProva {
  Elenchi() {
    archivioDi(110, "108 Ba 7").scrivi(p);
    scriviMetodoProva(p, "Metodo 2", {{.estrazione = 107, .ruote = {1}, .ambate = {7}}});
    scriviMetodoProva(p, "Zeta", {{.estrazione = 109, .ruote = {1}, .colpi = 5, .ambate = {9}}});
  }
  /// The methods of the report shown, or the note in its place.
  [[nodiscard]] QString elenco() const {
    if (figlia().findChild<QWidget*>("prgbar")->isVisible()) return "progress";
    if (const auto* nota = figlia().findChild<QLabel*>("lblPrev"); nota->isVisible()) return nota->text();
    QStringList metodi;
    for (const auto& riga : testo("RichTextBox1").split('\n'))
      if (riga.startsWith(" Metodo: ")) metodi << riga.mid(9);
    return metodi.join(' ');
  }
};

}  // namespace

class ElenchiGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void theListInPlayFollowsTheChoiceOfAMethod() {
    Elenchi v;
    v.scegli("mnuUtility1");
    QCOMPARE(v.elenco(), QString("Zeta"));
    v.stampa();
    QCOMPARE(v.detti(), QStringList(2, "[Ambolino] Stampo la previsione?"));
    v.usa("optSelMetodo_0").setFocus();
    v.p.servizi.pause = 0;
    v.premi(Qt::Key_Right);          // "Metodo 1", which is in no file yet
    QCOMPARE(v.p.servizi.pause, 2);  // the list's own event and the option's
    v.premi(Qt::Key_Space);
    QCOMPARE(v.p.servizi.pause, 3);  // no change in the list
    QCOMPARE(v.elenco(), QString("Non ci sono previsioni in gioco"));
    QVERIFY(v.p.esiste("Metodi/Metodo 1.dat"));
    QVERIFY(!v.visibile("btnStampa").isEnabled());
    const auto rosso = v.visibile("lblPrev").palette().color(QPalette::WindowText);
    QVERIFY(rosso.red() > 2 * rosso.green() && rosso.red() > 2 * rosso.blue());
    v.usa<QComboBox>("cmbMetodo").setFocus();
    v.premi(Qt::Key_Down, {}, 2);
    QCOMPARE(v.testo("cmbMetodo") + ": " + v.elenco(), QString("Zeta: Zeta"));
    v.p.scrivi("Metodi/Nuovo.dat", "");  // a method made while the window is open
    v.premi(Qt::Key_F4);
    for (const auto tasto : {Qt::Key_Up, Qt::Key_Return})
      QTest::keyClick(v.usa<QComboBox>("cmbMetodo").view(), tasto);
    QCOMPARE(v.testo("cmbMetodo") + ": " + v.elenco(), QString("Nuovo: Non ci sono previsioni in gioco"));
  }

  void aListRewritesNothingThatIsTypedAndOffersWhatBeginsLikeIt() {
    Elenchi v;
    v.scegli("mnuGestione21");
    auto& lista = v.usa<QComboBox>("cmbMetodo");
    QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
    v.premi(Qt::Key_Down, {}, 2);
    // What is typed behind Home or otherwise, and the text then.
    for (const auto& [tasti, testo] : {std::pair{QList{Qt::Key_Home, Qt::Key_A, Qt::Key_B}, "abMetodo 2"},
                                       {QList{Qt::Key_Delete, Qt::Key_X}, "abxetodo 2"},
                                       {QList{Qt::Key_End, Qt::Key_Left, Qt::Key_Backspace}, "abxetodo2"}}) {
      for (const auto tasto : tasti) {
        if (tasto >= Qt::Key_A && tasto <= Qt::Key_Z)
          v.scrivi(QChar(tasto).toLower());
        else
          v.premi(tasto);
      }
      QCOMPARE(v.testo("cmbMetodo"), QString(testo));
    }
    QCOMPARE(QToolTip::text(), QString("Non c'è nessun metodo di nome \"abxetodo2\""));
    const std::function<void()> via[] = {[&] { v.premi(Qt::Key_Tab); },
                                         [&] { QTest::mouseClick(&v.visibile("lblnestr"), Qt::LeftButton); },
                                         [&] { v.finestra.move(v.finestra.pos() + QPoint(5, 5)); }};
    for (const auto& gesto : via) {
      lista.setFocus();
      lista.lineEdit()->selectAll();
      v.scrivi("ZE");  // is offered "Zeta", and stays as it is unless that is taken
      QTRY_VERIFY(!QToolTip::isVisible());
      auto* offerti = lista.findChild<QListWidget*>("suggerimenti");
      QVERIFY(offerti && offerti->isVisible() && offerti->count() == 1);
      gesto();
      QCOMPARE(v.testo("cmbMetodo"), QString("ZE"));
      QVERIFY(lista.findChild<QListWidget*>("suggerimenti") == nullptr);
    }
    lista.setFocus();
    lista.lineEdit()->selectAll();
    v.scrivi("ze");
    v.premi(Qt::Key_Down);
    v.premi(Qt::Key_Up);
    QCOMPARE(lista.findChild<QListWidget*>("suggerimenti")->currentRow(), -1);
    v.premi(Qt::Key_Escape);
    QVERIFY(lista.findChild<QListWidget*>("suggerimenti") == nullptr && lista.isVisible());
    QCOMPARE(v.testo("cmbMetodo"), QString("ze"));
    lista.lineEdit()->selectAll();
    v.scrivi("ze");
    v.premi(Qt::Key_Down);
    v.premi(Qt::Key_Return);
    QCOMPARE(v.testo("cmbMetodo"), QString("Zeta"));
    v.p.scrivi("Metodi/Yps.dat", "");  // made while the window is open
    v.premi(Qt::Key_Up);
    QCOMPARE(v.testo("cmbMetodo"), QString("Yps"));
    const auto suggerito = [&] {
      QHelpEvent evento(QEvent::ToolTip, QPoint(3, 3), lista.mapToGlobal(QPoint(3, 3)));
      QApplication::sendEvent(&lista, &evento);
      return lista.toolTip();
    };
    QCOMPARE(suggerito(), QString());
    v.scrivi("x");
    QCOMPARE(suggerito(), QString("Non c'è nessun metodo di nome \"Ypsx\""));
    v.p.scrivi("Metodi/" + std::string(200, 'z') + ".dat", "");
    v.premi(Qt::Key_Backspace);
    v.premi(Qt::Key_Down, {}, 2);
    QCOMPARE(suggerito(), QString(200, 'z'));
  }

  void whatIsTypedIsWhereAListGoesOnFrom() {
    Elenchi v;
    v.scegli("mnuGestione21");
    auto& lista = v.usa<QComboBox>("cmbMetodo");
    QTRY_COMPARE(v.fuoco(), QString("cmbMetodo"));
    v.p.scrivi("Metodi/Quarto.dat", "");  // made while the window is open
    v.scrivi("qu");
    const auto* offerti = lista.findChild<QListWidget*>("suggerimenti");
    QVERIFY(offerti && offerti->count() == 1);
    v.premi(Qt::Key_End);
    // What is typed over all, the arrow behind it, and the text then.
    for (const auto& [digitato, tasto, testo] : {std::tuple{"Zeta", Qt::Key_Up, "Quarto"},
                                                 {"Metodo 1", Qt::Key_Down, "Metodo 2"},
                                                 {"nessuno", Qt::Key_Up, "nessuno"},
                                                 {"nessuno", Qt::Key_Down, "Metodo 1"}}) {
      lista.lineEdit()->selectAll();
      v.scrivi(digitato);
      v.premi(tasto);
      QCOMPARE(v.testo("cmbMetodo"), QString(testo));
    }
    QCOMPARE(lista.lineEdit()->cursorPosition(), 8);
    v.usa("txtNum").setFocus();
    v.principale.aperta<frmInsPrev>()->cmbMetodo.Text("Zeta");
    QCOMPARE(lista.lineEdit()->cursorPosition(), 0);  // a long name is read from its beginning
  }

  void theWheelOverTheNumbersMovesTheDrawAndTheyLookReadOnly() {
    Elenchi v;
    for (const char* voce : {"mnu1Modifica", "mnuMetodi", "mnuGestione21", "mnuUtility3"}) {
      v.scegli(voce);
      auto& campo = v.visibile("txtestr_7");
      QWheelEvent giro(QPointF(4, 4), campo.mapToGlobal(QPointF(4, 4)), {}, QPoint(0, 120), Qt::NoButton, {},
                       Qt::NoScrollPhase, false);
      QSpontaneKeyEvent::setSpontaneous(&giro);  // as from the window system: it goes on to whoever takes it
      qApp->notify(&campo, &giro);
      QCOMPARE(v.testo("lblnestr"), QString::number(110 - QApplication::wheelScrollLines()));
      const auto normale = QApplication::palette().color(QPalette::Base);
      QCOMPARE(campo.palette().color(QPalette::Base) == normale, QString(voce) == "mnu1Modifica");
    }
  }

  void theWinnersFollowTheArrowsFromOneToFive() {
    Elenchi v;
    v.scegli("mnuUtility2");
    v.usa<QSpinBox>("UpDown1").setFocus();
    for (const auto& [tasto, volte, visto] :
         {std::tuple{Qt::Key_Down, 1, "1 Non ci sono previsioni vincenti"},
          {Qt::Key_Up, 2, "3 Metodo 2"},
          {Qt::Key_Up, 5, "5 Metodo 2"}}) {
      v.premi(tasto, {}, volte);
      QCOMPARE(v.testo("txtColpi") + ' ' + v.elenco(), QString(visto));
    }
    v.scrivi("4");
    QCOMPARE(v.testo("txtColpi"), QString("5"));
    v.clicca("btnStampa");  // does nothing here
  }

  void whatIsPressedDuringAScanRunsBehindIt() {
    Elenchi v;
    v.scegli("mnuUtility1");
    QStringList durante;
    v.p.servizi.pause = 0;
    v.p.servizi.allaPausa = [&] {
      durante << v.testo("prgbar") + (v.visibile("cmbMetodo").isEnabled() ? " of one" : " of all");
      if (v.p.servizi.pause != 1) return;
      v.usa<QRadioButton>("optSelMetodo_1").click();
      v.clicca("btnStampa");
      v.clicca("btnCancella");
      v.figlia().close();
      QCOMPARE(v.aperte().size(), 1);
      QCOMPARE(v.detti(), QStringList());
    };
    v.usa("optSelMetodo_0").setFocus();
    v.premi(Qt::Key_Space);  // chosen already: the scan of all methods once more
    QCOMPARE(durante, QStringList({"50% of all", "100% of all", "100% of one", "100% of one"}));
    QCOMPARE(v.detti(), QStringList("[Ambolino] Stampo la previsione?"));
    QCOMPARE(v.aperte(), QStringList());
    QCOMPARE(v.p.contenuto("PrevGioco.txt"), std::string());
  }

  void theSumViewMarksEqualValuesInYellow() {
    PrincipaleProva v;
    archivioDi(3, "1 Ba 33 44, 2 Ba 1 90, 2 Ca 10 55, 2 Fi 30 29, 3 Ba 5 9").scrivi(v.p);
    v.scegli("mnuUtility3");
    QTRY_COMPARE(v.fuoco(), QString("VScroll1"));
    const auto colonna = [&] {
      QStringList campi;
      for (int i = 0; i < 3; ++i) {
        const auto nome = QString("txtestr_%1").arg(i);
        const auto sfondo = v.visibile(nome).palette().color(QPalette::Base);
        campi << v.testo(nome) + (sfondo == QColor(255, 255, 0)     ? "*"
                                  : sfondo == QColor(192, 192, 192) ? ""
                                                                    : "?");
      }
      return v.testo("lblnestr") + ": " + campi.join(' ');
    };
    QCOMPARE(colonna(), QString("3: 4 0* 0*"));
    v.premi(Qt::Key_Up);
    QCOMPARE(colonna(), QString("2: 1* 45 1*"));
    v.clicca("optdistmat");
    QCOMPARE(colonna(), QString("2: 89 45 1"));
    v.premi(Qt::Key_Right);
    QCOMPARE(colonna(), QString("2: 1 65 59"));
    v.premi(Qt::Key_Left);
    QCOMPARE(colonna(), QString("2: 89 45 1"));
    v.p.servizi.digitato = "12/3/2005";  // of the first draw, whose raw numbers go to the first column
    v.clicca("btnTrova");
    QCOMPARE(colonna(), QString("1: 33 44 0"));
  }

  void theGuideOpensByItsKeyBesideTheOtherWindows() {
    PrincipaleProva v;
    archivioDi(5, "3 Ba 11").scrivi(v.p);
    v.premi(Qt::Key_F1);
    QVERIFY(v.detti().value(0).contains("guida/guida.html"));
    std::filesystem::create_directory(v.p.cartella().file(kFileGuida).parent_path());
    v.p.scrivi("guida/guida.html",
               "<meta charset=utf-8><h1>Città</h1><h2 id=uno>Uno</h2><p>alfa</p><h3 id=due>Due</h3><p>beta "
               "alfa</p>");
    v.scegli("mnu1Modifica");
    v.p.servizi.digitato = "3";
    v.clicca("btnTrova");
    v.premi(Qt::Key_F1);
    QPointer<QWidget> guida = v.finestra.findChild<QWidget*>("guida");
    QVERIFY(guida && guida->isVisible());
    auto& testo = *guida->findChild<QTextBrowser*>("guidaTesto");
    QVERIFY(testo.toPlainText().startsWith("Città"));
    auto& capitoli = *guida->findChild<QListWidget*>("guidaCapitoli");
    QCOMPARE(capitoli.count(), 2);
    capitoli.setCurrentRow(1);
    QCOMPARE(testo.source().fragment(), QString("due"));
    QTest::keyClick(&testo, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(testo.source().fragment().isEmpty());
    QTest::mouseClick(capitoli.viewport(), Qt::LeftButton, {},
                      capitoli.visualItemRect(capitoli.item(1)).center());
    QCOMPARE(testo.source().fragment(), QString("due"));  // though it was the current one
    QTest::keyClick(guida, Qt::Key_F, Qt::ControlModifier);
    auto* ricerca = guida->findChild<QLineEdit*>("guidaRicerca");
    QTest::keyClicks(ricerca, "alfa");
    const int prima = testo.textCursor().position();
    QTest::keyClick(ricerca, Qt::Key_Return);
    QVERIFY(testo.textCursor().selectedText() == "alfa" && testo.textCursor().position() > prima);
    guida->showMinimized();
    v.scegli("mnuInformazioni1");
    QVERIFY(guida && !guida->isMinimized());
    QTest::keyClick(guida, Qt::Key_Escape);
    QTRY_VERIFY(!guida);
    QCOMPARE(v.aperte(), QStringList("Modifica Estrazione"));
    QCOMPARE(v.numeri(0, 1), QString("11"));  // the draw shown is still the same
  }
};

QTEST_MAIN(ElenchiGuiTest)
#include "dialogs/frm_principale.h"
#include "elenchi_gui_test.moc"
