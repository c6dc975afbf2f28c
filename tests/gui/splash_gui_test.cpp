#include <QElapsedTimer>
#include <QTest>

#include "desktop/finestra_splash.h"

using namespace vaticlo;

namespace {

/// A splash on the screen that counts how often it opens the main window.
struct Splash {
  Splash() {
    finestra.show();
    [[maybe_unused]] const bool attiva = QTest::qWaitForWindowActive(&finestra);
  }
  int aperture = 0;
  FinestraSplash finestra{[this] { ++aperture; }};
};

}  // namespace

class SplashGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void anyKeyOpensTheMainWindowAtOnceAndOnlyOnce() {
    for (const auto tasto : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Shift}) {
      Splash splash;
      QTest::keyPress(splash.finestra.windowHandle(), tasto);
      QVERIFY(splash.aperture == 1 && !splash.finestra.isVisible());
      QTest::keyClick(&splash.finestra, tasto);
      QCOMPARE(splash.aperture, 1);
    }
  }

  void withoutAKeyItWaitsFiveSecondsWhateverTheMouseDoes() {
    Splash splash;
    QElapsedTimer orologio;
    orologio.start();
    QTest::mouseClick(splash.finestra.windowHandle(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(splash.aperture, 1, 6500);
    QVERIFY(orologio.elapsed() > 4600);  // such a timer may be a twentieth early
    QVERIFY(!splash.finestra.isVisible());
  }
};

QTEST_MAIN(SplashGuiTest)
#include "splash_gui_test.moc"
