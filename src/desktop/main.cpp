#include <QApplication>
#include <QFile>
#include <QSettings>
#include <csignal>
#include <filesystem>
#include <memory>

#include "desktop/applicazione.h"
#include "desktop/confine.h"
#include "desktop/servizi_desktop.h"
#include "desktop/vista_principale.h"
#include "desktop/vista_splash.h"
#include "methods/cartella_metodi.h"

int main(int argc, char* argv[]) {
  using namespace vaticlo;
  // A limit on the size of files shows as a write that fails, not as the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication applicazione(argc, argv);
  preparaApplicazione(applicazione);
  // Nothing is remembered between runs: the file dialog would otherwise keep its last folders in a file of
  // settings.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));

  ServiziDesktop servizi;
  Programma programma(QFile::encodeName(QApplication::applicationDirPath()).toStdString(), servizi);
  const Confine confine;
  frmPrincipale principale(programma);
  std::unique_ptr<VistaPrincipaleQt> finestra;
  VistaSplash splash([&] {
    finestra = std::make_unique<VistaPrincipaleQt>(principale, confine);
    servizi.padre(finestra.get());
    finestra->show();
    std::error_code ignorato;
    std::filesystem::create_directories(cartellaMetodi(programma.cartella), ignorato);
  });
  splash.show();
  return QApplication::exec();
}
