#include <QMouseEvent>
#include <QToolTip>

#include "desktop/grafico_vista.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

struct Figura : PrincipaleProva {
  Figura() {
    archivioDi(130, "103 Ba 7 8 9 10 11").scrivi(p);
    scriviMetodoProva(p, "Mio", {{.estrazione = 102, .ruote = {1}, .colpi = 2, .ambate = {7}}});
  }
  [[nodiscard]] GraficoVista& figura() const { return dynamic_cast<GraficoVista&>(visibile("grafico")); }
};

/// How much of the picture is of about this colour, in points.
int punti(const QImage& immagine, const QColor& colore) {
  int punti = 0;
  for (int y = 0; y < immagine.height(); ++y)
    for (int x = 0; x < immagine.width(); ++x) punti += immagine.pixelColor(x, y) == colore;
  return punti;
}

}  // namespace

class GraficiGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aPictureIsReadByKeysAndByPointing() {
    Figura v;
    v.scegli("mnuUtility5");
    auto& figura = v.figura();
    figura.setFocus();
    const auto descrizione = figura.accessibleDescription();
    v.premi(Qt::Key_Right);
    QCOMPARE(QToolTip::text(), QString("1: ritardo 1, massimo 1, uscito 0 volte"));
    QCOMPARE(figura.accessibleDescription(), QToolTip::text());
    v.premi(Qt::Key_End);
    QCOMPARE(QToolTip::text(), QString("11: ritardo 0, massimo 0, uscito 1 volta"));
    const auto lettoA = [&](Qt::Key tasto) {
      v.premi(tasto);
      return QToolTip::text().section(':', 0, 0);
    };
    const auto penultimo = lettoA(Qt::Key_Left), ultimo = lettoA(Qt::Key_Right);
    QVERIFY(penultimo != ultimo && lettoA(Qt::Key_Right) == ultimo);
    const auto prima = lettoA(Qt::Key_PageUp);
    QVERIFY(prima != ultimo && prima != penultimo);
    QCOMPARE(lettoA(Qt::Key_PageDown), ultimo);
    QCOMPARE(lettoA(Qt::Key_Home), QString("1"));
    QCOMPARE(lettoA(Qt::Key_Left), QString("1"));
    QVERIFY(lettoA(Qt::Key_Right) != "1");
    QCOMPARE(lettoA(Qt::Key_Left), QString("1"));
    v.premi(Qt::Key_Escape);
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(figura.accessibleDescription(), descrizione);
    const QPoint centro = figura.rect().center();
    QMouseEvent sopra(QEvent::MouseMove, centro, figura.mapToGlobal(centro), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&figura, &sopra);
    QVERIFY(QToolTip::text().contains(": ritardo "));
  }

  void aPictureHasItsSeriesInBothPalettesAndIsSavedDarkOnWhite() {
    Figura v;
    v.scegli("mnuUtility4");
    v.clicca("btnElabora");
    QVERIFY(v.testo("lblFrase").startsWith("Mio: 100% di vincenti"));
    auto& figura = v.figura();
    const QColor chiare(0x93, 0xB5, 0xDB), scure(0x5E, 0x86, 0xB5);  // the runs of chance
    const auto schermo = [&] {
      QCoreApplication::processEvents();
      return figura.grab().toImage();
    };
    QVERIFY(punti(schermo(), chiare) > 500);
    QPalette notte;
    notte.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    notte.setColor(QPalette::Text, Qt::white);
    figura.setPalette(notte);
    QVERIFY(punti(schermo(), scure) > 500);
    const auto salvata = QImage::fromData(figura.png());
    QCOMPARE(salvata.size(), figura.size() * 2);
    QCOMPARE(salvata.pixelColor(1, 1), QColor(Qt::white));
    QVERIFY(punti(salvata, chiare) > 2000);
    QVERIFY(figura.pdf().startsWith("%PDF") && figura.pdf().size() > 3000);
  }
};

QTEST_MAIN(GraficiGuiTest)
#include "grafici_gui_test.moc"
