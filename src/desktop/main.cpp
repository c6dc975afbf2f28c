#include <QApplication>
#include <QSettings>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "desktop/applicazione.h"
#include "desktop/aspetto.h"
#include "desktop/confine.h"
#include "desktop/servizi_desktop.h"
#include "desktop/vista_principale.h"
#include "desktop/vista_splash.h"
#include "methods/cartella_metodi.h"
#include "platform/processo.h"

namespace {

// What is asked of a program before there is any window: nothing of it needs a screen.
const char* rispostaSenzaSchermo(const std::vector<std::string>& parole) {
  for (const auto& parola : parole) {
    if (parola == "--version" || parola == "-v") return "vaticlo " VATICLO_VERSION;
    if (parola == "--help" || parola == "-h")
      return "Vaticlo: archivio, previsioni e verifiche per chi gioca al Lotto.\n\n"
             "Uso: vaticlo              apre la finestra\n"
             "     vaticlo --version    dice la versione\n"
             "     vaticlo --help       mostra questo testo\n\n"
             "I dati sono nella cartella del programma. Dentro, F1 apre la guida; senza finestre: "
             "vaticlo-cli --help";
  }
  return nullptr;
}

// GNOME gives Wayland's windows no frame, and those of X its own.
void preferisciCornici() {
  if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QStringLiteral("GNOME")) &&
      !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace vaticlo;
  const Processo processo(argc, argv);
  if (const char* risposta = rispostaSenzaSchermo(processo.parole())) {
    std::puts(risposta);
    return EXIT_SUCCESS;
  }
  preferisciCornici();
  QApplication applicazione(argc, argv);
  preparaApplicazione(applicazione);
  const Aspetto aspetto;
  // Nothing is remembered between runs: the file dialog would otherwise keep its last folders in a file of
  // settings. (Windows remembers them all the same, in its registry.)
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));

  ServiziDesktop servizi;
  Programma programma(cartellaEseguibile(), servizi);
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
