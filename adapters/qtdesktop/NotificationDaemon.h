#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace tessivo {

/// Whether the desktop has a program that shows notifications: one that runs, or that the bus would start.
/// Main thread of a running Qt application.
class NotificationDaemon final : public QObject {
public:
    explicit NotificationDaemon(const QDBusConnection& bus) : bus_(bus) {}

    /// `answered` is called once, in a later turn of the main loop, while this object lives. Without a bus
    /// there is no such program.
    void isThere(const std::function<void(bool)>& answered);

private:
    QDBusConnection bus_;
};

} // namespace tessivo
