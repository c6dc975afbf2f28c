#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QStyleFactory>
#include <QTranslator>
#include <csignal>
#include <filesystem>
#include <memory>

#include "desktop/confine.h"
#include "desktop/finestra_principale.h"
#include "desktop/finestra_splash.h"
#include "desktop/servizi_desktop.h"

int main(int argc, char* argv[]) {
  using namespace vaticlo;
  // A limit on the size of files shows as a write that fails, not as the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication applicazione(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Vaticlo"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  // Nothing is remembered between runs; the file dialog would write its last folders there.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
  // The interface is Italian whatever the system's language is.
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QTranslator italiano;
  if (italiano.load(QStringLiteral(":/traduzioni/qtbase_it.qm"))) QApplication::installTranslator(&italiano);

  ServiziDesktop servizi;
  Programma programma(QApplication::applicationDirPath().toStdString(), servizi);
  const Confine confine;
  frmPrincipale principale(programma);
  std::unique_ptr<FinestraPrincipale> finestra;
  FinestraSplash splash([&] {
    finestra = std::make_unique<FinestraPrincipale>(principale, confine);
    servizi.padre(finestra.get());
    finestra->show();
    std::error_code ignorato;
    std::filesystem::create_directories(programma.cartella.metodi(), ignorato);
  });
  splash.show();
  return QApplication::exec();
}
