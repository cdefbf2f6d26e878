#include "qtdesktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace tessivo::desktop {
namespace {

constexpr uint failed = 2; // 0 is success, 1 the user's refusal
constexpr const char* requestInterface = "org.freedesktop.portal.Request";

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const QString& token, Responded responded,
                             QObject* parent)
    : QObject(parent), bus_(bus), responded_(std::move(responded)) {
    // The response may come before the call returns: the portal's path for it is known beforehand.
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    path_ = QStringLiteral("%1/request/%2/%3").arg(QString::fromLatin1(portalPath), sender, token);
    bus_.connect(QString::fromLatin1(portalName), path_, QString::fromLatin1(requestInterface),
                 QStringLiteral("Response"), this, SLOT(respond(uint, QVariantMap)));
}

PortalRequest::~PortalRequest() {
    if (responded_ && bus_.isConnected())
        bus_.send(QDBusMessage::createMethodCall(QString::fromLatin1(portalName), path_,
                                                 QString::fromLatin1(requestInterface),
                                                 QStringLiteral("Close")));
}

void PortalRequest::send(const QDBusMessage& call) {
    if (!bus_.isConnected()) { // such a connection never answers a call
        QMetaObject::invokeMethod(
            this, [this] { finish(DesktopPortal::Answer::Absent); }, Qt::QueuedConnection);
        return;
    }
    auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        if (watcher->isError())
            finish(DesktopPortal::Answer::Absent);
    });
}

void PortalRequest::respond(uint response, const QVariantMap& results) {
    finish(response == failed ? DesktopPortal::Answer::Absent : DesktopPortal::Answer::Done, results);
}

void PortalRequest::finish(DesktopPortal::Answer answer, const QVariantMap& results) {
    if (const auto responded = std::exchange(responded_, {})) {
        deleteLater();
        responded(answer, results);
    }
}

} // namespace tessivo::desktop
