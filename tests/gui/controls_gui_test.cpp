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

  void captionsAndFontsMakeRoomForThemselves() {
    xpcmdbutton pulsante;
    pulsante.setObjectName("btnSalva");
    QCOMPARE(pulsante.Caption(), QString("btnSalva"));
    pulsante.setCaption("Salva l'estrazione");
    pulsante.setObjectName("btnAltro");
    QCOMPARE(pulsante.Caption(), QString("Salva l'estrazione"));
    const QSize prima = pulsante.sizeHint();
    pulsante.setFont(QFont(pulsante.font().family(), 30));
    QVERIFY(pulsante.sizeHint().width() > prima.width() && pulsante.sizeHint().height() > prima.height());

    xpgroupbox riquadro("Opzioni");
    riquadro.resize(200, 100);
    const int didascalia = riquadro.fontMetrics().height();
    QCOMPARE(riquadro.contentsRect(), QRect(3, didascalia, 194, 100 - 3 - didascalia));
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
    QStringList fatti;
    const auto segna = [&](const QString& cosa) {
      fatti << QString("%1 %2%3%4").arg(cosa).arg(ciclo->Value()).arg(somma->Value()).arg(altrove->Value());
    };
    connect(somma, &xpradiobutton::Click, this, [&] { segna("Click"); });
    connect(ciclo, &xpradiobutton::toggled, this, [&] { segna("ciclo"); });
    connect(somma, &xpradiobutton::toggled, this, [&] { segna("somma"); });
    QTest::mouseClick(somma, Qt::LeftButton, {}, kDentro);
    QCOMPARE(fatti, QStringList({"Click 101", "ciclo 001", "somma 011"}));
    fatti.clear();
    QTest::keyClick(interna->campo, Qt::Key_O, Qt::AltModifier);  // it is on already
    QCOMPARE(fatti, QStringList({"Click 011", "somma 001", "somma 011"}));
    QTest::keyClick(ciclo, Qt::Key_Space);
    QVERIFY(ciclo->isChecked() && !somma->isChecked() && altrove->isChecked());
    QTest::mouseClick(altrove, Qt::LeftButton, {}, kDentro);
    QVERIFY(ciclo->isChecked());
  }

  void assistiveToolsReadNameRoleAndState() {
    Finestra finestra;
    auto* pulsante = finestra.aggiungi<xpcmdbutton>("&Elabora", 10);
    auto* opzione = finestra.aggiungi<xpradiobutton>("Somma && &Distanza", 60);
    xpgroupbox riquadro("Opzioni di Ricerca", &finestra);
    pulsante->setEnabled(false);
    opzione->setValue(true);
    const auto leggi = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    QCOMPARE(leggi(pulsante)->role(), QAccessible::PushButton);
    QCOMPARE(leggi(pulsante)->text(QAccessible::Name), QString("Elabora"));
    QVERIFY(leggi(pulsante)->state().disabled);
    QCOMPARE(leggi(opzione)->role(), QAccessible::RadioButton);
    QCOMPARE(leggi(opzione)->text(QAccessible::Name), QString("Somma & Distanza"));
    QVERIFY(leggi(opzione)->state().checked);
    opzione->setValue(false);
    QVERIFY(leggi(opzione)->state().checkable && !leggi(opzione)->state().checked);
    leggi(opzione)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(opzione->Value());
    QCOMPARE(leggi(&riquadro)->role(), QAccessible::Grouping);
    QCOMPARE(leggi(&riquadro)->text(QAccessible::Name), QString("Opzioni di Ricerca"));
  }
};

QTEST_MAIN(ControlsGuiTest)
#include "controls_gui_test.moc"
