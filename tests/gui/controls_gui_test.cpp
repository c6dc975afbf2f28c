#include <QAccessible>
#include <QCursor>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "controls/xpcmdbutton.h"
#include "controls/xpgroupbox.h"
#include "controls/xpradiobutton.h"

using namespace vaticlo;

namespace {

/// A shown window with a text field that has the focus, and a button.
struct Finestra : QWidget {
  Finestra() {
    resize(400, 300);
    pulsante->setGeometry(10, 10, 200, 40);
    campo->setGeometry(10, 250, 100, 30);
    show();
    campo->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(this));
  }
  /// Moves the pointer as a user would: the cursor is there, then the event comes.
  void porta(QPoint dove) const {
    QCursor::setPos(pulsante->mapToGlobal(dove));
    QTest::mouseMove(pulsante, dove);
  }
  xpcmdbutton* pulsante = new xpcmdbutton("&Salva", this);
  QLineEdit* campo = new QLineEdit(this);
  QSignalSpy click{pulsante, &xpcmdbutton::Click};
};

const QPoint kDentro(20, 20);
const QPoint kFuori(20, 120);

}  // namespace

class ControlsGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void theHoverLookEndsSoonAfterTheMouseLeaves() {
    Finestra f;
    const QImage riposo = f.pulsante->grab().toImage();
    QSignalSpy fuori(f.pulsante, &xpcmdbutton::MouseOut);
    auto* timer = f.pulsante->findChild<QTimer*>("Timer1");
    QVERIFY(!timer->isActive());
    f.porta(kDentro);
    QVERIFY(timer->isActive());
    QVERIFY(f.pulsante->grab().toImage() != riposo);
    QCursor::setPos(f.pulsante->mapToGlobal(kFuori));
    QTRY_COMPARE_WITH_TIMEOUT(fuori.count(), 1, 500);
    QVERIFY(!timer->isActive());
    QCOMPARE(f.pulsante->grab().toImage(), riposo);
  }

  void keysAndMouseClickAndTheButtonRestsWhenItsHandlerRuns() {
    Finestra f;
    QList<AspettoPulsante> visti;
    connect(f.pulsante, &xpcmdbutton::Click, this, [&] { visti << f.pulsante->aspetto(); });
    QTest::keyClick(f.campo, Qt::Key_S, Qt::AltModifier);
    QCOMPARE(visti.count(), 1);  // at once, with no time for the event loop
    QVERIFY(f.pulsante->hasFocus());
    QTest::keyPress(f.pulsante, Qt::Key_Space);
    QCOMPARE(f.pulsante->aspetto(), AspettoPulsante::Premuto);
    QTest::keyRelease(f.pulsante, Qt::Key_Space);
    QTest::mouseClick(f.pulsante, Qt::LeftButton, {}, kDentro);
    QTest::mousePress(f.pulsante, Qt::RightButton, {}, kDentro);
    QVERIFY(f.pulsante->aspetto() != AspettoPulsante::Premuto);
    QTest::keyClick(f.pulsante, Qt::Key_Return);  // no key of the control's own
    QCOMPARE(visti, QList<AspettoPulsante>(3, AspettoPulsante::Normale));
  }

  void aDisabledButtonIsGreyAndDeaf() {
    Finestra f;
    f.pulsante->setFont(QFont("Sans", 24, QFont::Black));  // strokes thicker than a pixel
    f.pulsante->setEnabled(false);
    f.porta(kDentro);
    QTest::mouseClick(f.pulsante, Qt::LeftButton, {}, kDentro);
    QTest::keyClick(f.campo, Qt::Key_S, Qt::AltModifier);
    QCOMPARE(f.click.count(), 0);
    QCOMPARE(f.pulsante->aspetto(), AspettoPulsante::Disabilitato);
    const QImage immagine = f.pulsante->grab().toImage();
    int grigi = 0;
    for (int y = 0; y < immagine.height(); ++y)
      for (int x = 0; x < immagine.width(); ++x) grigi += immagine.pixelColor(x, y) == QColor(161, 161, 146);
    QVERIFY2(grigi > 50, qPrintable(QString::number(grigi)));
  }

  void radioButtonsAreOneGroupInTheirWindowAcrossContainers() {
    QWidget principale;
    auto* area = new QMdiArea(&principale);
    auto* interna = new QWidget;
    auto* riquadro = new xpgroupbox("Riquadro", interna);
    auto* ciclo = new xpradiobutton("&Ciclometrica", interna);
    auto* somma = new xpradiobutton("S&omma", riquadro);
    auto* altrove = new xpradiobutton("Nella finestra principale", &principale);
    altrove->move(0, 510);
    riquadro->setGeometry(0, 100, 250, 100);
    area->resize(700, 500);
    area->addSubWindow(interna)->resize(300, 300);
    principale.show();
    QVERIFY(QTest::qWaitForWindowActive(&principale));
    ciclo->setValue(true);
    altrove->setValue(true);
    const auto valori = [&] {
      return QList<bool>{ciclo->isChecked(), somma->isChecked(), altrove->isChecked()};
    };
    QTest::mouseClick(somma, Qt::LeftButton);
    QCOMPARE(valori(), QList<bool>({false, true, true}));
    QTest::keyClick(somma, Qt::Key_C, Qt::AltModifier);
    QTest::mouseClick(altrove, Qt::LeftButton);
    QCOMPARE(valori(), QList<bool>({true, false, true}));
  }

  void whatTheMouseAndTheKeysDoIsReportedInOrder() {
    Finestra f;
    auto* riquadro = new xpgroupbox("Riquadro", &f);
    riquadro->setGeometry(10, 100, 200, 100);
    riquadro->show();
    QStringList detti;
    const auto annota = [&](auto* controllo, auto segnale, const char* nome) {
      connect(controllo, segnale, this, [&detti, nome] { detti << nome; });
    };
    const auto delMouse = [&]<class C>(C* controllo) {
      annota(controllo, &C::MouseDown, "down");
      annota(controllo, &C::MouseUp, "up");
      annota(controllo, &C::Click, "click");
    };
    delMouse(f.pulsante);
    delMouse(riquadro);
    annota(riquadro, &xpgroupbox::DblClick, "double");
    annota(f.pulsante, &ControlloDisegnato::MouseMove, "move");
    annota(f.pulsante, &ControlloDisegnato::KeyDown, "keydown");
    annota(f.pulsante, &ControlloDisegnato::KeyPress, "keypress");
    annota(f.pulsante, &ControlloDisegnato::KeyUp, "keyup");
    QMouseEvent mossa(QEvent::MouseMove, kDentro, f.pulsante->mapToGlobal(kDentro), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(f.pulsante, &mossa);
    QTest::mouseClick(f.pulsante, Qt::LeftButton, {}, kDentro);
    QTest::keyClick(f.pulsante, Qt::Key_A);
    QTest::keyClick(f.pulsante, Qt::Key_Shift);
    QCOMPARE(detti.join(' '), QString("move down up click keydown keypress keyup keydown keyup"));
    detti.clear();
    QTest::mouseClick(riquadro, Qt::LeftButton, {}, kDentro);
    QTest::mouseDClick(riquadro, Qt::LeftButton, {}, kDentro);
    QTest::mouseRelease(riquadro, Qt::LeftButton, {}, kDentro);
    QCOMPARE(detti.join(' '), QString("down up click down double up"));
  }

  void theBackColourOfAGroupBoxFillsTheStripBehindItsCaption() {
    Finestra f;
    auto* riquadro = new xpgroupbox("Riquadro", &f);
    riquadro->setGeometry(10, 100, 200, 100);
    riquadro->setBackColor(QColor(0, 200, 0));
    riquadro->show();
    const auto immagine = riquadro->grab().toImage();
    const int linea = riquadro->fontMetrics().height() / 2;
    QCOMPARE(immagine.pixelColor(12, linea + 4), QColor(0, 200, 0));  // beside the first letter
    QVERIFY(immagine.pixelColor(12, linea - 3) != QColor(0, 200, 0));
    QCOMPARE(immagine.pixelColor(100, 60), QColor(0, 200, 0));
  }

  void everyControlShowsItsCaption() {
    Finestra f;
    const auto mostra = [](auto* controllo) {
      controllo->setGeometry(10, 100, 200, 40);
      const QImage prima = controllo->grab().toImage();
      controllo->setCaption("Altro");
      return controllo->grab().toImage() != prima;
    };
    QVERIFY(mostra(f.pulsante));
    QVERIFY(mostra(new xpradiobutton("Uno", &f)));
    QVERIFY(mostra(new xpgroupbox("Uno", &f)));
  }

  void assistiveToolsReadNameRoleAndState() {
    Finestra f;
    auto* opzione = new xpradiobutton("Somma && &Distanza", &f);
    auto* riquadro = new xpgroupbox("Opzioni di Ricerca", &f);
    const auto leggi = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    const auto nome = [&leggi](QWidget* widget) { return leggi(widget)->text(QAccessible::Name); };
    QCOMPARE(leggi(f.pulsante)->role(), QAccessible::PushButton);
    QCOMPARE(nome(f.pulsante), QString("Salva"));
    QCOMPARE(leggi(opzione)->role(), QAccessible::RadioButton);
    QCOMPARE(nome(opzione), QString("Somma & Distanza"));
    QCOMPARE(leggi(riquadro)->role(), QAccessible::Grouping);
    QCOMPARE(nome(riquadro), QString("Opzioni di Ricerca"));
    QVERIFY(leggi(opzione)->state().checkable && !leggi(opzione)->state().checked);
    leggi(opzione)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(opzione->Value() && leggi(opzione)->state().checked);
    f.pulsante->setObjectName("btnSalva");  // the caption only of a button that has none
    QCOMPARE(f.pulsante->Caption(), QString("&Salva"));
  }
};

QTEST_MAIN(ControlsGuiTest)
#include "controls_gui_test.moc"
