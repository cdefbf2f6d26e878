#include "qtsharing/DesktopPortal.h"

#include "qtsharing/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace tessivo::sharing {
namespace {

constexpr const char* noParentWindow = "";

QDBusUnixFileDescriptor opened(const QString& path) {
    const int file = ::open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
    const QDBusUnixFileDescriptor descriptor(file); // keeps a descriptor of its own
    if (file >= 0)
        ::close(file);
    return descriptor;
}

} // namespace

void DesktopPortal::openFile(const QString& path, Answered answered) {
    call("org.freedesktop.portal.OpenURI", "OpenFile",
         {QString::fromLatin1(noParentWindow), QVariant::fromValue(opened(path))},
         {{QStringLiteral("ask"), true}}, std::move(answered));
}

void DesktopPortal::composeMail(const QString& attachment, Answered answered) {
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    const QList<QDBusUnixFileDescriptor> attachments{opened(attachment)};
    call("org.freedesktop.portal.Email", "ComposeEmail", {QString::fromLatin1(noParentWindow)},
         {{QStringLiteral("attachment_fds"), QVariant::fromValue(attachments)}}, std::move(answered));
}

void DesktopPortal::call(const char* interface, const char* method, QList<QVariant> arguments,
                         QVariantMap options, Answered answered) {
    if (!bus_.isConnected()) { // such a connection never answers a call
        QMetaObject::invokeMethod(
            this, [answered = std::move(answered)] { answered(Answer::Absent); }, Qt::QueuedConnection);
        return;
    }
    const QString token = QStringLiteral("tessivo%1").arg(++requests_);
    options.insert(QStringLiteral("handle_token"), token);
    arguments.append(options);
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    (new PortalRequest(bus_, token, std::move(answered), this))->send(message);
}

} // namespace tessivo::sharing
