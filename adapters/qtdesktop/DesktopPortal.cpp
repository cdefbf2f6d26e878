#include "qtdesktop/DesktopPortal.h"

#include "qtdesktop/FileFilter.h"
#include "qtdesktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace tessivo::desktop {
namespace {

constexpr const char* noParentWindow = "";
constexpr const char* mailInterface = "org.freedesktop.portal.Email";
constexpr int patience = 1000; // milliseconds

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

bool DesktopPortal::isSandboxed() {
    return QFile::exists(QStringLiteral("/.flatpak-info"));
}

void DesktopPortal::openFile(const QString& path, Answered answered) {
    call("org.freedesktop.portal.OpenURI", "OpenFile",
         {QString::fromLatin1(noParentWindow), QVariant::fromValue(opened(path))},
         {{QStringLiteral("ask"), true}}, withoutResults(std::move(answered)));
}

void DesktopPortal::composeMail(const Mail& mail, Answered answered) {
    QVariantMap options;
    if (!mail.recipient.isEmpty())
        options.insert(QStringLiteral("addresses"), QStringList{mail.recipient});
    if (!mail.subject.isEmpty())
        options.insert(QStringLiteral("subject"), mail.subject);
    if (!mail.body.isEmpty())
        options.insert(QStringLiteral("body"), mail.body);
    if (!mail.attachment.isEmpty()) {
        qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
        options.insert(QStringLiteral("attachment_fds"),
                       QVariant::fromValue(QList<QDBusUnixFileDescriptor>{opened(mail.attachment)}));
    }
    call(mailInterface, "ComposeEmail", {QString::fromLatin1(noParentWindow)}, std::move(options),
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

bool DesktopPortal::canComposeMail() const {
    if (!bus_.isConnected())
        return false;
    auto question = QDBusMessage::createMethodCall(
        QString::fromLatin1(portalName), QString::fromLatin1(portalPath),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({QString::fromLatin1(mailInterface), QStringLiteral("version")});
    return bus_.call(question, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
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
