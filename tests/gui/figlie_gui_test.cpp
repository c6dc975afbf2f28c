#include <QAction>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
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
                                       {"mnuMetodi", "Vaticla"},
                                       {"mnuInformazioni2", "Informazione su"}}) {
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
    QCOMPARE(v.figlia().geometry(), QRect(233, 60, 409, 331));
    QCOMPARE(v.testo("Label1"), QString("Vaticlo"));
    v.scegli("mnuUtility2");  // needs more height, and the main window grows
    QVERIFY(v.finestra.height() > 600);
    QVERIFY(v.finestra.findChild<QMdiArea*>()->viewport()->rect().contains(v.figlia().geometry()));
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
    for (const auto& [voce, domanda] :
         {std::pair{"mnu1Inserisci", "[Attenzione] Sei sicuro di voler salvare l'estrazione"},
          {"mnu1Modifica", "[Attenzione] Sei sicuro di voler modificare l'estrazione corrente"}}) {
      v.scegli(voce);
      v.scrivi("12");
      v.premi(Qt::Key_S, Qt::AltModifier);
      QCOMPARE(v.detti(), QStringList(domanda));
    }
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
