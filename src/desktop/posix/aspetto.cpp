#include "desktop/aspetto.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vaticlo {

namespace {
constexpr uint kPreferisceScuro = 1;
}

void Aspetto::chiedi() {
  auto domanda = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  domanda << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
  auto* attesa = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(domanda), this);
  connect(attesa, &QDBusPendingCallWatcher::finished, this, [this, attesa] {
    attesa->deleteLater();
    const QDBusPendingReply<QDBusVariant> risposta = *attesa;
    if (risposta.isError()) return;
    const auto valore = risposta.value().variant().value<QDBusVariant>().variant();
    vesti(valore.toUInt() == kPreferisceScuro);
  });
}

}  // namespace vaticlo
