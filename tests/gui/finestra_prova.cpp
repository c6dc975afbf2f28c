#include "gui/finestra_prova.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <stdexcept>

namespace vaticlo::prova {

PrincipaleProva::PrincipaleProva()
    : confine_([this](const RuntimeFailure& failure) { failures_ << failure.numero(); }),
      principale_(p.programma),
      finestra((QApplication::setStyle("Fusion"), principale_), confine_) {
  if (!italiano_.load(":/traduzioni/qtbase_it.qm")) ferma("no Italian texts");
  QApplication::installTranslator(&italiano_);
  finestra.show();
  if (!QTest::qWaitForWindowActive(&finestra)) ferma("the main window does not become active");
}

PrincipaleProva::~PrincipaleProva() {
  const auto taciuti = detti();
  if (!taciuti.isEmpty()) QTest::qFail(qPrintable("message: " + taciuti.join(" / ")), __FILE__, __LINE__);
  for (const int numero : failures_)
    QTest::qFail(qPrintable(QString("failure %1").arg(numero)), __FILE__, __LINE__);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void PrincipaleProva::ferma(const QString& perche) {
  QTest::qFail(qPrintable(perche), __FILE__, __LINE__);
  throw std::runtime_error(perche.toStdString());
}

void PrincipaleProva::scegli(const QString& azione) {
  const auto azioni = finestra.findChildren<QAction*>(azione);
  if (azioni.size() != 1) ferma(QString("%1 menu entries: %2").arg(azioni.size()).arg(azione));
  if (!azioni[0]->isVisible() || !azioni[0]->isEnabled()) ferma("hidden or disabled: " + azione);
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
  auto& widget = usa(nome);
  QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {},
                    widget.mapTo(&finestra, widget.rect().center()));
}

QString PrincipaleProva::testo(const QString& nome) const {
  const auto& widget = visibile(nome);
  for (const char* proprieta : {"displayText", "plainText", "currentText", "text"})
    if (const auto valore = widget.property(proprieta); valore.isValid()) return valore.toString();
  ferma("shows no text: " + nome);
}

QString PrincipaleProva::numeri(int f, int quanti) const {
  QStringList testi;
  for (int n = f; n < f + quanti; ++n) testi << testo(QString("txtestr_%1").arg(n));
  return testi.join(' ');
}

bool PrincipaleProva::siVede(const QString& nome) const {
  const auto* widget = figlia().findChild<QWidget*>(nome);
  return widget != nullptr && widget->isVisible();
}

QWidget& PrincipaleProva::visibile(const QString& nome) const {
  const auto widget = figlia().findChildren<QWidget*>(nome);
  if (widget.size() != 1) ferma(QString("%1 widgets: %2").arg(widget.size()).arg(nome));
  if (!widget[0]->isVisible()) ferma("hidden: " + nome);
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
