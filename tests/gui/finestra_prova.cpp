#include "gui/finestra_prova.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <stdexcept>

#include "desktop/applicazione.h"

namespace vaticlo::prova {

PrincipaleProva::PrincipaleProva() {
  static const bool pronta = (preparaApplicazione(*qApp), true);
  Q_UNUSED(pronta);
  finestra.show();
  if (!QTest::qWaitForWindowActive(&finestra)) ferma("the main window does not become active");
}

PrincipaleProva::~PrincipaleProva() {
  for (const auto& testo : detti()) QTest::qFail(qPrintable("message: " + testo), __FILE__, __LINE__);
  for (const int numero : giunte)
    QTest::qFail(qPrintable(QString("failure %1").arg(numero)), __FILE__, __LINE__);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void PrincipaleProva::ferma(const QString& perche) {
  QTest::qFail(qPrintable(perche), __FILE__, __LINE__);
  throw std::runtime_error(perche.toStdString());
}

void PrincipaleProva::scegli(const QString& voce) {
  const auto azioni = finestra.findChildren<QAction*>(voce);
  if (azioni.size() != 1 || !azioni[0]->isVisible() || !azioni[0]->isEnabled())
    ferma("missing, hidden or disabled: " + voce);
  azioni[0]->trigger();
  QCoreApplication::processEvents();
}

void PrincipaleProva::premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori, int volte) {
  while (volte-- > 0) QTest::keyClick(finestra.windowHandle(), tasto, modificatori);
}

void PrincipaleProva::scrivi(const QString& testo) {
  for (const QChar c : testo) QTest::keyClick(finestra.windowHandle(), c.toLatin1());
}

void PrincipaleProva::clicca(const QString& nome) {
  const auto& widget = usa(nome);
  const auto punto = widget.mapTo(&finestra, widget.rect().center());
  if (finestra.childAt(punto) != &widget) ferma("outside or covered: " + nome);
  QCursor::setPos(finestra.mapToGlobal(punto));  // the buttons look where the pointer is
  QTest::mousePress(finestra.windowHandle(), Qt::LeftButton, {}, punto);
  QCoreApplication::processEvents();  // a user holds the button down for a while
  QTest::mouseRelease(finestra.windowHandle(), Qt::LeftButton, {}, punto);
}

void PrincipaleProva::stampa() {
  for (const auto risposta : {Risposta::No, Risposta::Si}) {
    p.servizi.risposta = risposta;
    clicca("btnStampa");
  }
  QVERIFY(p.servizi.stampati == std::vector{testo("RichTextBox1").toStdString()});
}

QString PrincipaleProva::testo(const QString& nome) const {
  for (const char* proprieta : {"displayText", "plainText", "currentText", "text"})
    if (const auto valore = visibile(nome).property(proprieta); valore.isValid()) return valore.toString();
  ferma("shows no text: " + nome);
}

QString PrincipaleProva::numeri(int f, int quanti) const {
  QStringList testi;
  for (int n = f; n < f + quanti; ++n) testi << testo(QString("txtestr_%1").arg(n));
  return testi.join(' ');
}

QWidget& PrincipaleProva::visibile(const QString& nome) const {
  const auto widget = figlia().findChildren<QWidget*>(nome);
  if (widget.size() != 1 || !widget[0]->isVisible()) ferma("missing, hidden or twice there: " + nome);
  return *widget[0];
}

QMdiSubWindow& PrincipaleProva::figlia() const {
  auto* attiva = finestra.findChild<QMdiArea*>()->activeSubWindow();
  if (attiva == nullptr) ferma("no child window is open");
  return *attiva;
}

QStringList PrincipaleProva::aperte() const {
  QStringList captions;
  for (const auto* sotto : finestra.findChild<QMdiArea*>()->subWindowList()) captions << sotto->windowTitle();
  return captions;
}

QString PrincipaleProva::fuoco() {
  const auto* widget = QApplication::focusWidget();
  return widget == nullptr ? QString() : widget->objectName();
}

QStringList PrincipaleProva::detti() {
  QStringList testi;
  for (const auto& testo : p.servizi.detti()) testi << QString::fromStdString(testo);
  p.servizi.messaggi.clear();
  return testi;
}

}  // namespace vaticlo::prova
