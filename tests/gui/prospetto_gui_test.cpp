#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/legame.h"
#include "desktop/prospetto_vista.h"
#include "gui/finestra_prova.h"
#include "sostegno/cornice_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

struct FinestraTabella : Finestra {
  explicit FinestraTabella(Cornice& cornice) : Finestra(cornice) {
    tavola.Titolo("Prova: 1/2");
    tavola.mostra({{{"Nome"}, {"Quota", Colonna::Tipo::Numero, 1}},
                   {{std::string("uno"), 2}, {std::string("<b>due"), 1.5}, {std::string("tre"), {}}}});
    tavola.Apri = [this] { aperte += testoCella(tavola.cella(*tavola.scelta(), 0)) + " "; };
  }
  void Form_Load() override {}
  Prospetto tavola{Prospetto::Scelta::Diverse};
  std::string aperte;
};

/// A window with a table and nothing else.
struct Prova {
  Prova() {
    auto* legame = new Legame(&finestra, frm, confine);
    vista = legame->prospetto(frm->tavola, "tavola");
    (new QVBoxLayout(&finestra))->addWidget(vista);
    finestra.show();
    if (!QTest::qWaitForWindowActive(&finestra)) PrincipaleProva::ferma("not active");
    vista->setFocus();
  }
  [[nodiscard]] QStringList colonna(int n) const {
    QStringList testi;
    for (int riga = 0; riga < vista->model()->rowCount(); ++riga)
      testi << vista->model()->index(riga, n).data().toString();
    return testi;
  }
  CorniceProva cornice;
  Confine confine;
  std::shared_ptr<FinestraTabella> frm = std::make_shared<FinestraTabella>(cornice);
  QWidget finestra;
  ProspettoVista* vista;
};

}  // namespace

class ProspettoGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void headsAndKeysPutTheRowsInOrderAndTheChoiceStays() {
    Prova v;
    QCOMPARE(v.colonna(1), QStringList({"2,0", "1,5", ""}));
    QTest::keyClick(v.vista, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(v.vista, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(v.frm->tavola.scelte().size(), 2U);
    QTest::keyClick(v.vista, Qt::Key_Space, Qt::ControlModifier);  // no more, and the keys stay there
    QVERIFY(v.frm->tavola.scelte().size() == 1 && v.vista->currentIndex().row() == 1);
    v.frm->tavola.scegli({2});
    QCOMPARE(v.vista->currentIndex().row(), 2);
    v.frm->tavola.scegli({0, 1});
    const auto& testa = *v.vista->horizontalHeader();
    QTest::mouseClick(testa.viewport(), Qt::LeftButton, {},
                      {testa.sectionPosition(1) + 5, testa.height() / 2});
    QCOMPARE(v.colonna(0), QStringList({"<b>due", "uno", "tre"}));
    QTest::keyClick(v.vista, Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(v.colonna(0), QStringList({"uno", "<b>due", "tre"}));
    QCOMPARE(testa.sortIndicatorOrder(), Qt::DescendingOrder);
    QTest::mouseClick(testa.viewport(), Qt::LeftButton, {},
                      {testa.sectionPosition(1) + 5, testa.height() / 2});
    QCOMPARE(v.colonna(0), QStringList({"uno", "<b>due", "tre"}));  // as it came
    QTest::keyClick(v.vista, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("Nome\tQuota\nuno\t2\n<b>due\t1,5\n"));
    QTest::keyClick(v.vista, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(v.vista, Qt::Key_Return);
    const auto primo = v.vista->visualRect(v.vista->model()->index(0, 0)).center();
    QTest::mouseClick(v.vista->viewport(), Qt::LeftButton, {}, primo);
    QTest::mouseDClick(v.vista->viewport(), Qt::LeftButton, {}, primo);
    QCOMPARE(QString::fromStdString(v.frm->aperte), QString("tre uno "));
  }

  void aTableOfOtherColumnsHasKeysAndEntriesOfItsOwn() {
    Prova v;
    v.frm->tavola.mostra(
        {{{"Ruota"}, {"Colpi", Colonna::Tipo::Numero}}, {{std::string("Ba"), 2}, {std::string("To"), 1}}});
    QStringList voci;
    for (const auto* azione : v.vista->findChildren<QAction*>())
      if (azione->shortcut().toString().startsWith("Ctrl+") && azione->shortcut() != QKeySequence::Copy)
        voci << azione->text();
    QCOMPARE(voci, QStringList({"Ruota", "Colpi"}));
    QTest::keyClick(v.vista, Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(v.colonna(0), QStringList({"To", "Ba"}));
  }

  void itsMenuOffersTheButtonsOfTheWindowFirst() {
    Prova v;
    QPushButton primo("&Verifica"), secondo("Copia in...");
    secondo.setEnabled(false);
    bool premuto = false;
    connect(&primo, &QPushButton::clicked, this, [&] { premuto = true; });
    v.vista->offri({&primo, &secondo});
    QStringList voci;
    QTimer risposta;
    connect(&risposta, &QTimer::timeout, this, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const auto* voce : menu->actions())
        if (!voce->isSeparator()) voci << voce->text() + (voce->isEnabled() ? "" : "-");
      QTest::keyClick(menu, Qt::Key_V);
    });
    risposta.start(10);
    QContextMenuEvent dallaTastiera(QContextMenuEvent::Keyboard, {}, v.vista->mapToGlobal(QPoint()));
    QApplication::sendEvent(v.vista, &dallaTastiera);
    QVERIFY(premuto);
    QCOMPARE(voci.mid(0, 4), QStringList({"&Verifica", "Copia in...-", "&Copia", "&Ordina per"}));
  }

  void theMethodsAreWorkedOnByKeys() {
    PrincipaleProva v;
    archivioDi(110).scrivi(v.p);
    const SlotProva slot{.estrazione = 101, .ruote = {1}, .ambate = {7}};
    scriviMetodoProva(v.p, "A", {slot, slot});
    scriviMetodoProva(v.p, "B", std::vector<SlotProva>(10, slot));
    v.scegli("mnuGestione3");
    QCOMPARE(v.fuoco(), QString("metodi"));
    v.usa("txtDal").setFocus();
    v.premi(Qt::Key_Return);
    QCOMPARE(v.fuoco(), QString("txtAl"));
    v.premi(Qt::Key_F, Qt::ControlModifier);
    v.scrivi("b");
    v.premi(Qt::Key_Down);
    v.premi(Qt::Key_Return);
    QCOMPARE(v.fuoco(), QString("previsioni"));
    QCOMPARE(v.testo("lblPrevisioni"), QString("Previsioni del metodo \"B\""));
    v.premi(Qt::Key_End, Qt::ControlModifier);
    v.p.servizi.digitato = "A";
    v.premi(Qt::Key_S, Qt::AltModifier);
    v.usa<QTableView>("previsioni").setFocus();
    v.premi(Qt::Key_A, Qt::ControlModifier);
    v.premi(Qt::Key_Delete);
    QCOMPARE(v.detti().size(), 1);
    QCOMPARE(ContaPrevisioni(LeggiMetodo(v.p.cartella(), "B")), 0);
    v.premi(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ContaPrevisioni(LeggiMetodo(v.p.cartella(), "B")), 9);
    QCOMPARE(ContaPrevisioni(LeggiMetodo(v.p.cartella(), "A")), 3);
    v.usa<QTableView>("previsioni").setFocus();
    v.premi(Qt::Key_Home, Qt::ControlModifier);
    v.premi(Qt::Key_Return);
    QCOMPARE(v.aperte(), QStringList({"Quadro dei Metodi", "Vaticla"}));
    QCOMPARE(v.testo("lblnestr") + v.testo("cmbMetodo"), QString("101B"));
    v.figlia().close();
    for (int n = 0; n < 2; ++n) v.premi(Qt::Key_Escape);  // the filter, then the window
    QCOMPARE(v.aperte(), QStringList());
  }

  void itsMenuSavesWhatIsShown() {
    Prova v;
    const QTemporaryDir cartella;
    v.frm->tavola.filtra("due");
    QTimer risposte;
    connect(&risposte, &QTimer::timeout, this, [&] {
      if (auto* scelta = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
        scelta->setDirectory(cartella.path());
        QMetaObject::invokeMethod(scelta, "accept");
      }
    });
    risposte.start(20);
    for (const char* azione : {"salvaCsv", "salvaPdf"}) v.vista->findChild<QAction*>(azione)->trigger();
    for (const auto& [nome, inizio] :
         {std::pair{"Prova- 1-2.csv", "\xEF\xBB\xBFNome;Quota\r\n<b>due;1,5\r\n"},
          {"Prova- 1-2.pdf", "%PDF"}}) {
      QFile file(cartella.filePath(nome));
      QVERIFY2(file.open(QIODevice::ReadOnly) && file.readAll().startsWith(inizio), nome);
    }
  }
};

QTEST_MAIN(ProspettoGuiTest)
#include "prospetto_gui_test.moc"
