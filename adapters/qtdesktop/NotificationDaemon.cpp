#include "qtdesktop/NotificationDaemon.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>

#include <utility>

namespace tessivo {
namespace {

const QString daemonName = QStringLiteral("org.freedesktop.Notifications");
const QString busName = QStringLiteral("org.freedesktop.DBus");

} // namespace

void NotificationDaemon::isThere(const std::function<void(bool)>& answered) {
    const auto ask = [this](const QString& method, auto listener) {
        const auto question =
            QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"), busName, method);
        auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
        connect(reply, &QDBusPendingCallWatcher::finished, this,
                [listener = std::move(listener)](QDBusPendingCallWatcher* watcher) {
                    watcher->deleteLater();
                    const QDBusPendingReply<QStringList> names = *watcher;
                    listener(names.isValid() && names.value().contains(daemonName));
                });
    };
    if (!bus_.isConnected()) { // which would leave the question open
        QMetaObject::invokeMethod(
            this, [answered] { answered(false); }, Qt::QueuedConnection);
        return;
    }
    ask(QStringLiteral("ListNames"), [ask, answered](bool runs) {
        if (runs)
            answered(true);
        else
            ask(QStringLiteral("ListActivatableNames"), answered);
    });
}

} // namespace tessivo
