#include <QAction>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QScreen>
#include <QToolButton>

#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

class FiglieGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aWindowThatIsOpenIsBroughtUpAgainAndMostCloseTheOthers() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    for (const auto& [voce, aperta] : {std::pair{"mnu1Inserisci", "Inserimento Estrazioni"},
                                       {"mnu1Modifica", "Modifica Estrazione"},
                                       {"mnuGestione21", "Inserisci Previsione"},
                                       {"mnuMetodi", "Vaticla"}}) {
      v.scegli(voce);
      QCOMPARE(v.aperte(), QStringList(aperta));
      const auto* prima = &v.figlia();
      v.scegli("mnuUtility3");
      QVERIFY(&v.figlia() != prima);
      v.scegli(voce);
      QCOMPARE(&v.figlia(), prima);
      QCOMPARE(v.aperte().size(), 2);
    }
    v.figlia().close();
    QCOMPARE(v.aperte(), QStringList("Somma/Distanza Estratti"));
    v.finestra.findChild<QToolButton*>("Info")->click();
    QCOMPARE(v.aperte(), QStringList("Informazione su"));
    QCOMPARE(v.testo("Label1"), QString("Vaticlo"));
  }

  void everyWindowHasItsSizeAndItsPlaceAndGrowsWithNoMethodsName() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    v.p.scrivi("Metodi/" + std::string(200, 'm') + ".dat", "");
    v.finestra.resize(1100, 800);
    for (const auto& [voce, attesa] : {std::pair{"mnu1Inserisci", QRect(116, 33, 502, 365)},
                                       {"mnu1Modifica", QRect(103, 33, 529, 365)},
                                       {"mnuMetodi", QRect(42, 13, 844, 464)},
                                       {"mnu1metodo1", QRect(33, 6, 693, 519)},
                                       {"mnuGestione21", QRect(133, 66, 862, 598)},
                                       {"mnuGestione22", QRect(133, 66, 862, 598)},
                                       {"mnuGestione12", QRect(233, 60, 360, 220)},
                                       {"mnuUtility1", QRect(200, 66, 509, 475)},
                                       {"mnuUtility2", QRect(200, 66, 509, 475)},
                                       {"mnuUtility3", QRect(3, 33, 777, 442)},
                                       {"mnuInformazioni2", QRect(233, 60, 409, 331)}}) {
      v.scegli(voce);
      QCOMPARE(v.figlia().geometry(), attesa);
      QCOMPARE(v.finestra.size(), QSize(1100, 800));
    }
  }

  void aChildMovesIntoViewAndOneThatIsTooLargeMakesTheMainWindowGrow() {
    PrincipaleProva v;
    archivioDi(3).scrivi(v.p);
    const auto dentro = [&] {
      return v.finestra.findChild<QMdiArea*>()->viewport()->rect().contains(v.figlia().geometry());
    };
    const auto prima = v.finestra.size();
    QVERIFY(prima.height() == 600 && prima.width() < 800);  // which is the width of the screen
    for (const char* voce : {"mnu1Inserisci", "mnuUtility1", "mnuUtility2"}) {
      v.scegli(voce);
      QVERIFY2(dentro() && v.finestra.size() == prima, voce);
    }
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
    v.p.servizi.risposta = Risposta::No;
    v.scegli("mnu1Inserisci");
    v.scrivi("12");
    v.premi(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(v.detti(), QStringList("[Attenzione] Sei sicuro di voler salvare l'estrazione"));
    for (const auto& [voce, lettera, primo, secondo] :
         {std::tuple{"mnu1Modifica", Qt::Key_S, "btnSalva", "btnAnnulla"},
          {"mnuGestione22", Qt::Key_E, "btnElimina", "btnCancella"},
          {"mnu1metodo1", Qt::Key_E, "btnCancella",
           "btnElabora"}}) {  // it opens with the focus on btnElabora
      v.scegli(voce);
      for (const char* nome : {primo, secondo, primo}) {
        v.premi(lettera, Qt::AltModifier);
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
