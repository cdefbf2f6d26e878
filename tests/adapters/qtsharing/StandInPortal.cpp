#include "adapters/qtsharing/StandInPortal.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>
#include <QFile>

namespace tessivo {
namespace {

const QString name = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");

std::string contentsOf(const QDBusUnixFileDescriptor& descriptor) {
    QFile file;
    return file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
}

QDBusUnixFileDescriptor handedOver(const QDBusMessage& message, const QVariantMap& options) {
    if (message.arguments().size() == 3)
        return message.arguments().at(1).value<QDBusUnixFileDescriptor>();
    const auto list = options.value(QStringLiteral("attachment_fds")).value<QDBusArgument>();
    QList<QDBusUnixFileDescriptor> attachments;
    list >> attachments;
    return attachments.value(0);
}

} // namespace

StandInPortal::StandInPortal(const QString& address)
    : bus_(QDBusConnection::connectToBus(address, QStringLiteral("portal"))) {
    bus_.registerVirtualObject(path, this);
    bus_.registerService(name);
}

StandInPortal::~StandInPortal() {
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

bool StandInPortal::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
    if (refuses)
        return false;
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    asked.push_back({message.interface().toStdString(), message.member().toStdString(),
                     contentsOf(handedOver(message, options)),
                     options.value(QStringLiteral("ask")).toBool()});

    const QString sender = message.service().mid(1).replace(u'.', u'_');
    const QString token = options.value(QStringLiteral("handle_token")).toString();
    const QString request = path + QStringLiteral("/request/") + sender + u'/' + token;
    bus_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    auto signal = QDBusMessage::createSignal(request, QStringLiteral("org.freedesktop.portal.Request"),
                                             QStringLiteral("Response"));
    signal.setArguments({response, QVariantMap()});
    bus_.send(signal);
    return true;
}

} // namespace tessivo
