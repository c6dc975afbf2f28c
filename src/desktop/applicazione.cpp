#include "desktop/applicazione.h"

#include <QApplication>
#include <QLocale>
#include <QStyleFactory>
#include <QTranslator>

#include "desktop/immagini.h"

namespace vaticlo {

void preparaApplicazione(QApplication& applicazione) {
  QApplication::setApplicationName(QStringLiteral("Vaticlo"));
  QApplication::setDesktopFileName(QStringLiteral("vaticlo"));  // by it Wayland finds name and picture
  QApplication::setWindowIcon(immagine(QStringLiteral("vaticlo")));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* italiano = new QTranslator(&applicazione);
  if (italiano->load(QStringLiteral(":/traduzioni/qtbase_it.qm"))) QApplication::installTranslator(italiano);
}

}  // namespace vaticlo
