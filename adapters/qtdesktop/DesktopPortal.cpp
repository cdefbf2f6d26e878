#include "qtdesktop/DesktopPortal.h"

#include "qtdesktop/FileFilter.h"
#include "qtdesktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace tessivo::desktop {
namespace {

constexpr const char* noParentWindow = "";

QDBusUnixFileDescriptor opened(const QString& path) {
    const int file = ::open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
    const QDBusUnixFileDescriptor descriptor(file); // keeps a descriptor of its own
    if (file >= 0)
        ::close(file);
    return descriptor;
}

auto withoutResults(DesktopPortal::Answered answered) {
    return [answered = std::move(answered)](DesktopPortal::Answer answer, const QVariantMap&) {
        answered(answer);
    };
}

} // namespace

void DesktopPortal::openFile(const QString& path, Answered answered) {
    call("org.freedesktop.portal.OpenURI", "OpenFile",
         {QString::fromLatin1(noParentWindow), QVariant::fromValue(opened(path))},
         {{QStringLiteral("ask"), true}}, withoutResults(std::move(answered)));
}

void DesktopPortal::composeMail(const QString& attachment, Answered answered) {
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    const QList<QDBusUnixFileDescriptor> attachments{opened(attachment)};
    call("org.freedesktop.portal.Email", "ComposeEmail", {QString::fromLatin1(noParentWindow)},
         {{QStringLiteral("attachment_fds"), QVariant::fromValue(attachments)}},
         withoutResults(std::move(answered)));
}

void DesktopPortal::startAtLogin(const QString& reason, const QStringList& command, Answered answered) {
    call("org.freedesktop.portal.Background", "RequestBackground", {QString::fromLatin1(noParentWindow)},
         {{QStringLiteral("reason"), reason},
          {QStringLiteral("autostart"), true},
          {QStringLiteral("commandline"), command},
          {QStringLiteral("dbus-activatable"), false}},
         withoutResults(std::move(answered)));
}

QObject* DesktopPortal::chooseFile(const QString& title, const QString& kind, const QStringList& mediaTypes,
                                   Chosen chosen) {
    registerFileFilters();
    FileFilter filter{kind, {}};
    for (const auto& type : mediaTypes)
        filter.matches.push_back({FileMatch::byMediaType, type});
    const QList<FileFilter> filters{filter};
    return call("org.freedesktop.portal.FileChooser", "OpenFile",
                {QString::fromLatin1(noParentWindow), title},
                {{QStringLiteral("filters"), QVariant::fromValue(filters)}},
                [chosen = std::move(chosen)](Answer answer, const QVariantMap& results) {
                    chosen(answer, results.value(QStringLiteral("uris")).toStringList());
                });
}

QObject* DesktopPortal::call(const char* interface, const char* method, QList<QVariant> arguments,
                             QVariantMap options, Responded responded) {
    const QString token = QStringLiteral("tessivo%1").arg(++requests_);
    options.insert(QStringLiteral("handle_token"), token);
    arguments.append(options);
    auto message =
        QDBusMessage::createMethodCall(QString::fromLatin1(portalName), QString::fromLatin1(portalPath),
                                       QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    auto* request = new PortalRequest(bus_, token, std::move(responded), this);
    request->send(message);
    return request;
}

} // namespace tessivo::desktop
