#include <QAccessible>
#include <QCursor>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "controls/xpcmdbutton.h"
#include "controls/xpgroupbox.h"
#include "controls/xpradiobutton.h"

using namespace vaticlo;

namespace {

/// A shown window with a text field that has the focus, and room for a control.
struct Finestra : QWidget {
  Finestra() {
    resize(400, 300);
    campo->setGeometry(10, 250, 100, 30);
  }
  void apri() {
    show();
    campo->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(this));
  }
  template <typename Controllo>
  Controllo* aggiungi(const QString& caption, int y, QWidget* dove = nullptr) {
    auto* controllo = new Controllo(caption, dove ? dove : this);
    controllo->setGeometry(10, y, 200, 40);
    return controllo;
  }
  QLineEdit* campo = new QLineEdit(this);
};

/// Moves the pointer to a place of the widget as a user would: the cursor is there, then the event comes.
void porta(QWidget* widget, QPoint dove) {
  QCursor::setPos(widget->mapToGlobal(dove));
  QTest::mouseMove(widget, dove);
}

const QPoint kDentro(20, 20);
const QPoint kFuori(20, 120);

}  // namespace

class ControlsGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void theHoverLookEndsSoonAfterTheMouseLeaves() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("Trova", 10);
    finestra.apri();
    const QImage riposo = pulsante->grab().toImage();
    QSignalSpy fuori(pulsante, &xpcmdbutton::MouseOut);
    QSignalSpy click(pulsante, &xpcmdbutton::Click);
    auto* timer = pulsante->findChild<QTimer*>("Timer1");
    QVERIFY(!timer->isActive());

    porta(pulsante, kDentro);
    QVERIFY(timer->isActive());
    QTest::qWait(50);
    QCOMPARE(fuori.count(), 0);
    QVERIFY(pulsante->grab().toImage() != riposo);

    QCursor::setPos(pulsante->mapToGlobal(kFuori));
    QTRY_COMPARE_WITH_TIMEOUT(fuori.count(), 1, 500);
    QVERIFY(!timer->isActive());
    QCOMPARE(pulsante->grab().toImage(), riposo);
    QCOMPARE(click.count(), 0);
  }

  void aPressThatLeavesTheButtonIsNoClick() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("Trova", 10);
    finestra.apri();
    QSignalSpy click(pulsante, &xpcmdbutton::Click);
    porta(pulsante, kDentro);
    QTest::mousePress(pulsante, Qt::LeftButton, {}, kDentro);
    QCOMPARE(pulsante->aspetto(), AspettoPulsante::Premuto);
    QCursor::setPos(pulsante->mapToGlobal(kFuori));
    QTRY_COMPARE_WITH_TIMEOUT(pulsante->aspetto(), AspettoPulsante::Normale, 500);
    QTest::mouseRelease(pulsante, Qt::LeftButton, {}, kFuori);
    QCOMPARE(click.count(), 0);
    QTest::mousePress(pulsante, Qt::RightButton, {}, kDentro);
    QCOMPARE(pulsante->aspetto(), AspettoPulsante::Normale);
  }

  void keysAndMouseClickAndTheButtonRestsWhenItsHandlerRuns() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("&Salva", 10);
    finestra.apri();
    QList<AspettoPulsante> visti;
    connect(pulsante, &xpcmdbutton::Click, pulsante, [&] { visti << pulsante->aspetto(); });
    QTest::keyClick(finestra.campo, Qt::Key_S, Qt::AltModifier);
    QCOMPARE(visti.count(), 1);  // at once, with no time for the event loop
    QVERIFY(pulsante->hasFocus());
    QTest::keyPress(pulsante, Qt::Key_Space);
    QCOMPARE(pulsante->aspetto(), AspettoPulsante::Premuto);
    QTest::keyRelease(pulsante, Qt::Key_Space);
    QTest::mouseClick(pulsante, Qt::LeftButton, {}, kDentro);
    QTest::keyClick(pulsante, Qt::Key_Return);  // no key of the control's own
    QCOMPARE(visti, QList<AspettoPulsante>(3, AspettoPulsante::Normale));
  }

  void aDisabledButtonIsGreyAndDeaf() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("&Stampa", 10);
    pulsante->setFont(QFont(pulsante->font().family(), 24, QFont::Black));  // strokes thicker than a pixel
    pulsante->setEnabled(false);
    finestra.apri();
    QSignalSpy click(pulsante, &xpcmdbutton::Click);
    porta(pulsante, kDentro);
    QTest::mouseClick(pulsante, Qt::LeftButton, {}, kDentro);
    QTest::keyClick(finestra.campo, Qt::Key_S, Qt::AltModifier);
    QCOMPARE(click.count(), 0);
    QCOMPARE(pulsante->aspetto(), AspettoPulsante::Disabilitato);
    const QImage immagine = pulsante->grab().toImage();
    int grigi = 0;
    for (int y = 0; y < immagine.height(); ++y)
      for (int x = 0; x < immagine.width(); ++x) grigi += immagine.pixelColor(x, y) == QColor(161, 161, 146);
    QVERIFY2(grigi > 50, qPrintable(QString::number(grigi)));
  }

  void radioButtonsAreOneGroupInTheirWindowAcrossContainers() {
    QWidget principale;
    auto* area = new QMdiArea(&principale);
    auto* interna = new Finestra;
    auto* riquadro = new xpgroupbox("Riquadro", interna);
    riquadro->setGeometry(0, 100, 250, 100);
    auto* ciclo = interna->aggiungi<xpradiobutton>("&Ciclometrica", 10);
    auto* somma = interna->aggiungi<xpradiobutton>("S&omma", 20, riquadro);
    auto* altrove = new xpradiobutton("Nella finestra principale", &principale);
    altrove->setGeometry(0, 510, 300, 40);
    area->resize(700, 500);
    area->addSubWindow(interna);
    principale.show();
    QVERIFY(QTest::qWaitForWindowActive(&principale));
    ciclo->setValue(true);
    altrove->setValue(true);
    const auto valori = [&] {
      return QList<bool>{ciclo->isChecked(), somma->isChecked(), altrove->isChecked()};
    };
    QList<QList<bool>> visti;
    connect(somma, &xpradiobutton::Click, this, [&] { visti << valori(); });
    QTest::mouseClick(somma, Qt::LeftButton, {}, kDentro);
    QCOMPARE(valori(), QList<bool>({false, true, true}));
    QTest::keyClick(interna->campo, Qt::Key_O, Qt::AltModifier);  // it is on already
    QCOMPARE(visti, QList<QList<bool>>({{true, false, true}, {false, true, true}}));
    QTest::keyClick(ciclo, Qt::Key_Space);
    QTest::mouseClick(altrove, Qt::LeftButton, {}, kDentro);
    QCOMPARE(valori(), QList<bool>({true, false, true}));
  }

  void assistiveToolsReadNameRoleAndState() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("&Elabora", 10);
    auto* opzione = finestra.aggiungi<xpradiobutton>("Somma && &Distanza", 60);
    xpgroupbox riquadro("Opzioni di Ricerca", &finestra);
    const auto leggi = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    for (const auto& [widget, ruolo, nome] :
         {std::tuple<QWidget*, QAccessible::Role, const char*>{pulsante, QAccessible::PushButton, "Elabora"},
          {opzione, QAccessible::RadioButton, "Somma & Distanza"},
          {&riquadro, QAccessible::Grouping, "Opzioni di Ricerca"}}) {
      QCOMPARE(leggi(widget)->role(), ruolo);
      QCOMPARE(leggi(widget)->text(QAccessible::Name), QString(nome));
    }
    QVERIFY(leggi(opzione)->state().checkable && !leggi(opzione)->state().checked);
    leggi(opzione)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(opzione->Value() && leggi(opzione)->state().checked);
  }
};

QTEST_MAIN(ControlsGuiTest)
#include "controls_gui_test.moc"
