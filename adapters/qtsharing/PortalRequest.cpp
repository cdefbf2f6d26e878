#include "qtsharing/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace tessivo::sharing {
namespace {

constexpr uint failed = 2; // 0 is success, 1 the user's refusal

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const QString& token,
                             DesktopPortal::Answered answered, QObject* parent)
    : QObject(parent), bus_(bus), answered_(std::move(answered)) {
    // The response may come before the call returns: the portal's path for it is known beforehand.
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    bus_.connect(QStringLiteral("org.freedesktop.portal.Desktop"),
                 QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token),
                 QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), this,
                 SLOT(respond(uint, QVariantMap)));
}

void PortalRequest::send(const QDBusMessage& call) {
    auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        if (watcher->isError())
            finish(DesktopPortal::Answer::Absent);
    });
}

void PortalRequest::respond(uint response, const QVariantMap&) {
    finish(response == failed ? DesktopPortal::Answer::Absent : DesktopPortal::Answer::Done);
}

void PortalRequest::finish(DesktopPortal::Answer answer) {
    if (const auto answered = std::exchange(answered_, {})) {
        deleteLater();
        answered(answer);
    }
}

} // namespace tessivo::sharing
