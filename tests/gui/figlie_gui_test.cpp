#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>

#include "controls/xpcmdbutton.h"
#include "dialogs/frm_principale_tavole.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

class FiglieGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aWindowThatIsOpenIsBroughtUpAgainAndMostCloseTheOthers_data() {
    QTest::addColumn<QString>("caption");
    QTest::newRow("mnu1Inserisci") << "Inserimento Estrazioni";
    QTest::newRow("mnu1Modifica") << "Modifica Estrazione";
    QTest::newRow("mnuGestione21") << "Inserisci Previsione";
    QTest::newRow("mnuMetodi") << "Vaticla";
  }
  void aWindowThatIsOpenIsBroughtUpAgainAndMostCloseTheOthers() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    v.scegli("mnu1metodo1");
    v.scegli(QTest::currentDataTag());
    QFETCH(const QString, caption);
    QCOMPARE(v.aperte(), QStringList(caption));
    const auto* prima = &v.figlia();
    v.figlia().showMinimized();
    v.scegli("mnuUtility3");
    QVERIFY(&v.figlia() != prima);
    v.scegli(QTest::currentDataTag());
    QVERIFY(&v.figlia() == prima && !prima->isMinimized());
    QCOMPARE(v.aperte().size(), 2);
    v.premi(Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(v.aperte(), QStringList("Somma/Distanza Estratti"));
  }

  void everyWindowHasItsPlaceAndItsWords_data() {
    QTest::addColumn<QRect>("posto");
    QTest::addColumn<QString>("parole");  // "name=text", "name=text/tool tip" or "=text", separated by "|"
    const QString titolo = "Label1=Estrazione n°|Label13=del|", esci = "btnCancella=&Esci/";
    const QString ruote =
        "Label2=Bari|Label21=Cagliari|Label20=Firenze|Label19=Genova|Label18=Milano|Label17=Napoli|"
        "Label16=Palermo|Label15=Roma|Label14=Torino|Label12=Venezia|Label3=Nazionale|";
    const QString scelta = "Frame2=Seleziona Metodo|optSelMetodo_0=Tutti|optSelMetodo_1=Scegli|";
    const QString editor =
        ruote +
        "Frame1=Seleziona Metodo|Frame2=Estrazione di Calcolo|Frame3=Previsione da Salvare|"
        "Frame11=Numero 899|txtNum=Es. 899.11.22.33|Frame4=Ruote di gioco|txtRuote=Es.:Ba-Ca-Tutte|"
        "Frame5=Colpi di gioco|Frame6=Combinazioni da giocare|Frame7=Ambate|txtAmbate=Es.:21;36|"
        "Frame8=Ambi Secchi|txtAmbi=Es.:15-50;25-12;66-10|Frame9=Sorti Superiori|"
        "txtSup=Es.:15-50-66-71;25-12-10|btnElabora=&Salva/Salva Previsione|" +
        esci + "Chiudi la finestra";
    const QString lista = scelta + esci + "Chiudi la finestra|btnStampa=Stampa/Stampa Previsioni";
    QTest::newRow("mnu1Inserisci") << QRect(116, 33, 502, 365)
                                   << ruote + "Label1=Estrazione del|btnSalva=&Salva/Salva Estrazione|" +
                                          esci + "Esci dalla finestra";
    QTest::newRow("mnu1Modifica")
        << QRect(103, 33, 529, 365)
        << titolo + ruote +
               "btnSalva=&Salva/Salva Estrazione|btnCancella=&Elimina/Cancella l'estrazione|"
               "btnTrova=&Trova/Trova l'estrazione|btnAnnulla=E&sci/Esci dalla finestra";
    QTest::newRow("mnuMetodi")
        << QRect(42, 13, 844, 464)
        << titolo + ruote + scelta +
               "btnTrova=Cerca Estrazione/Cerca Estrazione di gioco|btnStampa=Stampa/Stampa Previsione|"
               "btnAnnulla=Esci/Chiudi la finestra|=Giocabili|=Vincenti|=In gioco";
    QTest::newRow("mnu1metodo1")
        << QRect(33, 6, 693, 519)
        << scelta +
               "Frame1=Opzioni di Ricerca|=Data inizio ricerca:|Label4=Es.N.|=Data fine "
               "ricerca:|Label5=Es.N.|"
               "btnElabora=&Elabora/Elabora Statistica|btnStop=&Interrompi/Interrompi Elaborazione|"
               "btnVincite=&Vincite/Visualizza Vincite|btnPrev=I&n gioco/Visualizza previsioni in gioco|"
               "btnStampa=Stampa/Stampa Statistica|" +
               esci + "Chiudi la finestra";
    QTest::newRow("mnuGestione21") << QRect(133, 66, 862, 598) << editor;
    QTest::newRow("mnuGestione22")
        << QRect(133, 66, 862, 598)
        << editor + "|Frame10=Seleziona Previsione|btnElimina=&Elimina/Elimina la previsione";
    QTest::newRow("mnuGestione12")
        << QRect(233, 60, 360, 220)
        << "Frame1=Seleziona &Metodo|Frame2=&Nuovo nome|btnRinomina=&Rinomina/Cambia il nome del metodo|"
           "btnElimina=E&limina/Elimina il metodo con le sue previsioni|btnEsci=&Esci/Chiudi la finestra";
    QTest::newRow("mnuUtility1") << QRect(200, 66, 509, 475) << lista;
    QTest::newRow("mnuUtility2") << QRect(200, 66, 509, 475)
                                 << lista + "|Frame1=Ultime Estrazioni da Considerare";
    QTest::newRow("mnuUtility3")
        << QRect(3, 33, 777, 442)
        << titolo +
               "Label2=Bari|Label3=Cagliari|Label4=Firenze|Label5=Genova|Label6=Milano|Label7=Napoli|"
               "Label8=Palermo|Label9=Roma|Label10=Torino|Label11=Venezia|Label12=1°- 2°|Label14=1°- 3°|"
               "Label15=1°- 4°|Label16=1°- 5°|Label17=2°- 3°|Label18=2°- 4°|Label19=2°- 5°|Label20=3°- 4°|"
               "Label21=3°- 5°|Label22=4°- 5°|=Distanza Ciclometrica|=Distanza Matematica|=Somma Matematica|"
               "btnAnnulla=&Annulla";
    QTest::newRow("mnuInformazioni2") << QRect(233, 60, 409, 331) << "Label1=Vaticlo";
  }
  void everyWindowHasItsPlaceAndItsWords() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    v.p.scrivi("Metodi/" + std::string(200, 'm') + ".dat", "");  // no window grows with a name
    v.finestra.resize(1100, 800);
    v.scegli(QTest::currentDataTag());
    QFETCH(const QRect, posto);
    QCOMPARE(v.figlia().geometry(), posto);
    QCOMPARE(v.finestra.size(), QSize(1100, 800));
    QStringList lette;
    for (const auto* widget : v.figlia().findChildren<QWidget*>())
      for (const char* proprieta : {"text", "title", "placeholderText", "Caption"})
        if (const auto nome = widget->objectName(), testo = widget->property(proprieta).toString();
            widget->isVisible())
          lette << '=' + testo << nome + '=' + testo << nome + '=' + testo + '/' + widget->toolTip();
    QFETCH(const QString, parole);
    for (const auto& attesa : parole.split('|')) QVERIFY2(lette.contains(attesa), qPrintable(attesa));
  }

  void aChildMovesIntoViewAndOneThatIsTooLargeMakesTheMainWindowGrow() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    const auto dentro = [&] {
      return v.finestra.findChild<QMdiArea*>()->viewport()->rect().contains(v.figlia().geometry());
    };
    const auto prima = v.finestra.size();
    v.scegli("mnuUtility1");
    QVERIFY(dentro() && v.finestra.size() == prima && prima.height() == 600 && prima.width() <= 800);
    v.scegli("mnuGestione21");
    QVERIFY(dentro() || v.finestra.width() > 800);
  }

  void whatIsBeingTypedGoesOnWhenAnotherWindowWasOnTop() {
    PrincipaleProva v;
    v.scegli("mnu1Inserisci");
    for (const bool grande : {false, true}) {
      if (grande) v.figlia().showMaximized();
      v.scrivi("5");
      v.scegli("mnuUtility3");
      v.scegli("mnu1Inserisci");
      v.scrivi("7");
      QCOMPARE(v.fuoco() + ' ' + v.numeri(0, 2), QString("txtestr_0 57   "));
      v.premi(Qt::Key_A, Qt::ControlModifier);
    }
  }

  void accessKeysOfTheActiveWindowComeBeforeTheMenu() {
    PrincipaleProva v;
    const struct {
      const char* voce;
      Qt::Key lettera;
      const char *primo, *secondo;  // which has the focus first
    } passi[] = {{"mnu1Modifica", Qt::Key_S, "btnSalva", "btnAnnulla"},
                 {"mnu1metodo1", Qt::Key_E, "btnCancella", "btnElabora"}};
    for (const auto& passo : passi) {
      v.scegli(passo.voce);
      for (const char* nome : {passo.primo, passo.secondo, passo.primo}) {
        v.premi(passo.lettera, Qt::AltModifier);
        QCOMPARE(v.fuoco(), QString(nome));
      }
      QVERIFY(v.detti().isEmpty() && v.aperte().size() == 1);
    }
    v.premi(Qt::Key_Return);  // presses what has the focus
    QCOMPARE(v.aperte(), QStringList());
    v.premi(Qt::Key_V, Qt::AltModifier);  // no button of the window has it
    QCOMPARE(v.aperte(), QStringList("Vaticla"));
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.aperte().last(), QString("Statistica"));
    v.premi(Qt::Key_G, Qt::AltModifier);
    for (const auto tasto : {Qt::Key_P, Qt::Key_M}) v.premi(tasto);
    QCOMPARE(v.aperte(), QStringList("Modifica Previsione"));
    v.premi(Qt::Key_U, Qt::AltModifier);
    v.premi(Qt::Key_V);  // the only entry that begins with it
    QCOMPARE(v.aperte(), QStringList("Vincenti alle ultime Estrazioni"));
    v.premi(Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(v.fuoco(), QString("optSelMetodo_0"));
  }

  void everyEntryAndButtonHasAnAccessKeyOfItsOwn() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    // Given captions are reached by their first letter (menus), Ctrl+M, Ctrl+P, F3, Esc, or walked through.
    const QSet<QString> dati{"Previsioni in Gioco", "Vincenti alle Ultime Estrazioni", "Tutti", "Scegli",
                             "Stampa", "Cerca Estrazione", "Esci", "Estrazione del",
                             "Data inizio ricerca:", "Data fine ricerca:", "Distanza Ciclometrica",
                             "Distanza Matematica", "Somma Matematica",
                             // and where two of them have the same one
                             "Modifica Estrazione: Alt+S", "Statistica: Alt+E", "Modifica Previsione: Alt+E"};
    QStringList sbagli;
    const auto guarda = [&](const QString& dove, const QStringList& captions) {
      QSet<QString> presi;
      for (const auto& caption : captions) {
        const auto tasto = QKeySequence::mnemonic(caption).toString();
        const auto detto = tasto.isEmpty() ? caption : dove + ": " + tasto;
        if ((tasto.isEmpty() || presi.contains(tasto)) && !dati.contains(detto)) sbagli << detto;
        presi << tasto;
      }
    };
    const auto voci = [](const QWidget& menu) {
      QStringList captions;
      for (const auto* voce : menu.actions())
        if (!voce->isSeparator()) captions << voce->text();
      return captions;
    };
    auto inVista = voci(*v.finestra.menuBar());
    for (const auto* bottone : v.finestra.findChildren<QPushButton*>()) inVista << bottone->text();
    guarda("Vaticlo", inVista);
    for (const auto* menu : v.finestra.menuBar()->findChildren<QMenu*>()) guarda(menu->title(), voci(*menu));
    for (const auto& voce : tavolaMenu()) {
      const auto nome = QString::fromUtf8(voce.nome);
      if (voce.azione == nullptr || QStringList{"mnu1Aggiorna", "mnu1Importa", "mnu1Esci", "mnuGestione11",
                                                "mnuUtility6", "mnuUtility7", "mnuInformazioni1"}
                                        .contains(nome))
        continue;
      v.scegli(nome);
      QStringList captions;
      for (const auto* widget : v.figlia().widget()->findChildren<QWidget*>()) {
        const auto testo = widget->property("text").toString(), titolo = widget->property("title").toString();
        const auto* etichetta = qobject_cast<const QLabel*>(widget);
        const bool pulsante = widget->inherits("QAbstractButton") && widget->focusPolicy() != Qt::NoFocus;
        const bool sua = pulsante || (etichetta != nullptr && etichetta->buddy() != nullptr);
        if (!widget->isVisibleTo(&v.figlia())) continue;
        if (sua && !testo.isEmpty()) captions << testo;
        if (titolo.contains('&')) captions << titolo;
      }
      guarda(v.figlia().windowTitle(), captions);
    }
    QVERIFY2(sbagli.isEmpty(), qPrintable(sbagli.join("\n")));
  }

  void aKeyThatIsHeldOrDeadPressesNothing() {
    PrincipaleProva v;
    v.scegli("mnuGestione12");
    auto& rinomina = v.usa("btnRinomina");
    rinomina.setFocus();
    for (const auto& [tasto, con] : {std::pair{Qt::Key_R, Qt::AltModifier}, {Qt::Key_Return, Qt::NoModifier}})
      for (const bool tenuto : {true, false}) {
        QKeyEvent premuto(QEvent::KeyPress, tasto, con, {}, tenuto);
        QApplication::sendEvent(&rinomina, &premuto);
        QCOMPARE(v.detti().size(), tenuto ? 0 : 1);
      }
    xpcmdbutton altrove("&Altrove");  // in a window of its own
    QSignalSpy click(&altrove, &xpcmdbutton::Click);
    QTest::keyClick(&altrove, Qt::Key_Return);
    QCOMPARE(click.count(), 0);
    v.scegli("mnu1metodo1");
    v.premi(Qt::Key_V, Qt::AltModifier);  // that of a button that is off, and of an entry of the menu
    QCOMPARE(v.aperte() << v.fuoco(), QStringList({"Statistica", "btnElabora"}));
    v.premi(Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(v.aperte().size(), 1);
  }

  void tabReachesEveryControl() {
    PrincipaleProva v;
    for (const char* voce : {"mnu1Modifica", "mnuGestione22", "mnuUtility3", "mnuMetodi", "mnu1metodo1"}) {
      v.scegli(voce);
      QSet<QString> raggiunti;
      for (int n = 0; n < 80; ++n) {
        v.premi(Qt::Key_Tab);
        raggiunti << v.fuoco();
      }
      for (const auto* widget : v.figlia().findChildren<QWidget*>(QRegularExpression("^(?!qt_).")))
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled() &&
            widget->focusProxy() == nullptr)
          QVERIFY2(raggiunti.contains(widget->objectName()), qPrintable(widget->objectName()));
    }
  }

  void whatTheToolkitAddsSpeaksItalian() {
    PrincipaleProva v;
    v.scegli("mnu1Modifica");
    const std::unique_ptr<QMenu> delCampo(v.usa<QLineEdit>("txtestr_0").createStandardContextMenu());
    QStringList testi;
    for (const auto* azione : v.finestra.findChildren<QAction*>() + delCampo->findChildren<QAction*>())
      testi << azione->text().remove('&').section('\t', 0, 0);
    for (const char* italiano :
         {"Ripristina", "Sposta", "Minimizza", "Chiudi", "Annulla", "Copia", "Incolla"})
      QVERIFY2(testi.contains(italiano), italiano);
    for (const char* inglese : {"Restore", "Size", "Maximize", "Stay on Top", "Redo", "Cut", "Select All"})
      QVERIFY2(!testi.contains(inglese), inglese);
  }
};

QTEST_MAIN(FiglieGuiTest)
#include "figlie_gui_test.moc"
