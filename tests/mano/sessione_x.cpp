#include "mano/sessione_x.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <csignal>

#include <sys/wait.h>

#include "desktop/vista_principale.h"
#include "mano/attesa.h"

namespace vaticlo::prova {

namespace {

/// Drawn by the same code with the same fonts on the same screen, the windows lie as in the program.
Mappa misura(const QString& chiave) {
  Mappa mappa;
  ProgrammaProva prova;
  const Confine confine;
  frmPrincipale principale(prova.programma);
  VistaPrincipaleQt finestra(principale, confine);
  finestra.setAttribute(Qt::WA_DontShowOnScreen);
  finestra.show();
  finestra.findChild<QAbstractButton*>(chiave)->click();
  const auto posto = [&](const QWidget& widget) {
    return QRect(widget.mapTo(&finestra, QPoint(0, 0)), widget.size());
  };
  for (const auto* widget : finestra.findChildren<QWidget*>())
    if (!widget->objectName().isEmpty()) mappa[widget->objectName()] = posto(*widget);
  const auto cornice = posto(*finestra.findChild<QMdiSubWindow*>());
  mappa["menu"] = posto(*finestra.menuBar());
  mappa["titolo"] = QRect(cornice.topLeft(), QSize(cornice.width(), 28));
  mappa["ingrandisci"] = QRect(cornice.topRight() - QPoint(46, 0), QSize(24, 28));
  mappa["chiudi"] = QRect(cornice.topRight() - QPoint(26, 0), QSize(24, 28));
  mappa["sfondo"] = QRect(cornice.bottomRight() - QPoint(30, 30), QSize(20, 20));
  return mappa;
}

const Mappa& mappaDi(const QString& chiave) {
  static const QMap<QString, Mappa> mappe = [] {
    QMap<QString, Mappa> tutte;
    for (const char* finestra : {"Insert", "Modify", "Sirvan1"}) tutte[finestra] = misura(finestra);
    return tutte;
  }();
  return *mappe.constFind(chiave);
}

}  // namespace

SessioneX::SessioneX(Schermo& schermo, const ArchivioProva& archivio) : schermo_(schermo) {
  mappa_ = mappaDi("Insert");  // its windows come and go before the program's
  archivio.scrivi(p);
  std::filesystem::copy_file(PROGRAMMA, p.radice / "vaticlo");
  std::filesystem::create_directory(p.radice / "guida");
  p.scrivi("guida/guida.html", "<p>Guida</p>");
  processo_ = avvia({(p.radice / "vaticlo").string()});
  const auto aperta = [&] { return schermo_.attiva().titolo == "Vaticlo"; };
  attendi("the splash", aperta);
  const auto splash = schermo_.attiva().finestra;
  schermo_.premi("space");
  attendi("the main window", [&] { return aperta() && schermo_.attiva().finestra != splash; });
  principale_ = schermo_.attiva().finestra;
}

SessioneX::~SessioneX() {
  kill(processo_, SIGKILL);
  waitpid(processo_, nullptr, 0);
}

void SessioneX::apri(const QString& chiave) {
  mappa_ = mappaDi(chiave);
  attendiPrincipale();
  clicca(chiave);
}

QRect SessioneX::area(const QString& nome) {
  const auto posto = mappa_.constFind(nome);
  if (posto == mappa_.constEnd()) throw std::runtime_error("nothing is called " + nome.toStdString());
  const auto angolo = schermo_.assoluto(principale_, {posto->x(), posto->y()});
  return {QPoint(angolo.x, angolo.y), posto->size()};
}

void SessioneX::clicca(const QString& nome, double parte, unsigned pulsante) {
  const auto posto = area(nome);
  schermo_.clicca({posto.x() + static_cast<int>(parte * posto.width()), posto.center().y()}, pulsante);
}

void SessioneX::punta(const QString& nome) {
  const auto centro = area(nome).center();
  schermo_.punta({centro.x(), centro.y()});
}

void SessioneX::ferma() const { kill(processo_, SIGSTOP); }

void SessioneX::riprendi() const { kill(processo_, SIGCONT); }

void SessioneX::attendiRiquadro(const std::string& titolo) {
  attendi("the box " + titolo, [&] { return schermo_.attiva().titolo == titolo; });
}

void SessioneX::attendiPrincipale() {
  attendi("the main window", [&] { return schermo_.attiva().finestra == principale_; });
}

QImage SessioneX::immagine(const QString& nome) {
  const auto posto = area(nome);
  return QGuiApplication::primaryScreen()
      ->grabWindow(0, posto.x(), posto.y(), posto.width(), posto.height())
      .toImage();
}

}  // namespace vaticlo::prova
