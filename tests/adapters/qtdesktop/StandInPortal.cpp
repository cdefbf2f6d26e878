#include "adapters/qtdesktop/StandInPortal.h"

#include "qtdesktop/FileFilter.h"

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

QStringList mediaTypesOf(const QVariantMap& options) {
    QStringList types;
    const auto list = options.value(QStringLiteral("filters")).value<QDBusArgument>();
    QList<desktop::FileFilter> filters;
    if (list.currentType() == QDBusArgument::ArrayType)
        list >> filters;
    for (const auto& filter : filters) {
        for (const auto& match : filter.matches)
            types.push_back(match.pattern);
    }
    return types;
}

QDBusUnixFileDescriptor handedOver(const QDBusMessage& message, const QVariantMap& options) {
    if (message.arguments().size() == 3)
        return message.arguments().at(1).value<QDBusUnixFileDescriptor>();
    if (!options.contains(QStringLiteral("attachment_fds")))
        return {};
    const auto list = options.value(QStringLiteral("attachment_fds")).value<QDBusArgument>();
    QList<QDBusUnixFileDescriptor> attachments;
    list >> attachments;
    return attachments.value(0);
}

} // namespace

StandInPortal::StandInPortal(const QString& address)
    : bus_(QDBusConnection::connectToBus(address, QStringLiteral("portal"))) {
    bus_.registerVirtualObject(path, this, QDBusConnection::SubPath);
    bus_.registerService(name);
}

StandInPortal::~StandInPortal() {
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

bool StandInPortal::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
    if (refuses)
        return false;
    if (message.member() == QLatin1String("Close")) {
        ++closed;
        return true;
    }
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    const bool chooses = message.interface().endsWith(QLatin1String("FileChooser"));
    asked.push_back({message.interface().toStdString(), message.member().toStdString(),
                     chooses ? std::string() : contentsOf(handedOver(message, options)),
                     options.value(QStringLiteral("ask")).toBool(), mediaTypesOf(options), options});

    const QString sender = message.service().mid(1).replace(u'.', u'_');
    const QString token = options.value(QStringLiteral("handle_token")).toString();
    const QString request = path + QStringLiteral("/request/") + sender + u'/' + token;
    bus_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    if (!answers)
        return true;
    auto signal = QDBusMessage::createSignal(request, QStringLiteral("org.freedesktop.portal.Request"),
                                             QStringLiteral("Response"));
    const QVariantMap results = uris.isEmpty() ? QVariantMap() : QVariantMap{{QStringLiteral("uris"), uris}};
    signal.setArguments({response, results});
    bus_.send(signal);
    return true;
}

} // namespace tessivo
