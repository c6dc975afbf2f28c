#include "desktop/aspetto.h"

#include <QSettings>

namespace vaticlo {

void Aspetto::chiedi() {
  const QSettings scelte(
      QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
      QSettings::NativeFormat);
  vesti(scelte.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0);
}

}  // namespace vaticlo
