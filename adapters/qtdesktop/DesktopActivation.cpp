#include "qtdesktop/DesktopActivation.h"

#include <QDBusMessage>
#include <QDBusVariant>

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

/// A parameter may come inside a variant of its own.
QString text(const QVariant& parameter) {
    return parameter.canConvert<QDBusVariant>() ? parameter.value<QDBusVariant>().variant().toString()
                                                : parameter.toString();
}

} // namespace

bool DesktopActivation::claim(const QString& action) {
    if (!takePlace()) {
        passOn(action);
        return false;
    }
    if (!action.isEmpty())
        QMetaObject::invokeMethod(
            this,
            [this, action] {
                activated_({{}, action, {}});
            },
            Qt::QueuedConnection);
    return true;
}

bool DesktopActivation::takePlace() {
    if (!bus_.isConnected())
        return true;
    bus_.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    return bus_.registerService(applicationId);
}

void DesktopActivation::passOn(const QString& action) {
    QVariantMap platformData;
    if (const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        platformData.insert(QStringLiteral("activation-token"), QString::fromUtf8(token));
    const QString method = action.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("ActivateAction");
    QDBusMessage call = QDBusMessage::createMethodCall(applicationId, objectPath, interfaceName, method);
    if (!action.isEmpty())
        call << action << QVariantList();
    call << platformData;
    bus_.call(call);
}

void DesktopActivation::Activate(const QVariantMap& platformData) {
    activated_({activationToken(platformData), {}, {}});
}

void DesktopActivation::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void DesktopActivation::ActivateAction(const QString& name, const QVariantList& parameters,
                                       const QVariantMap& platformData) {
    activated_({activationToken(platformData), name, parameters.isEmpty() ? QString() : text(parameters[0])});
}

} // namespace tessivo
