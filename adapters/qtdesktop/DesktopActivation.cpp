#include "qtdesktop/DesktopActivation.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tessivo {
namespace {

const QString applicationId = QStringLiteral("org.tessivo.Tessivo");
const QString objectPath = QStringLiteral("/org/tessivo/Tessivo");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

/// Desktops hand the permission over under either name.
QString activationToken(const QVariantMap& platformData) {
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? platformData.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

} // namespace

bool DesktopActivation::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return true;
    bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    if (bus.registerService(applicationId))
        return true;
    QVariantMap platformData;
    if (const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        platformData.insert(QStringLiteral("activation-token"), QString::fromUtf8(token));
    QDBusMessage call =
        QDBusMessage::createMethodCall(applicationId, objectPath, interfaceName, QStringLiteral("Activate"));
    call << platformData;
    bus.call(call);
    return false;
}

void DesktopActivation::Activate(const QVariantMap& platformData) {
    activated_(activationToken(platformData));
}

void DesktopActivation::Open(const QStringList&, const QVariantMap& platformData) {
    activated_(activationToken(platformData));
}

void DesktopActivation::ActivateAction(const QString&, const QVariantList&, const QVariantMap& platformData) {
    activated_(activationToken(platformData));
}

} // namespace tessivo
