#include "qtdesktop/NotificationDaemon.h"
#include "adapters/qtdesktop/StandInPrograms.h"
#include "processes/PrivateSession.h"

namespace tessivo {
namespace {

bool isThere(const QDBusConnection& bus) {
    NotificationDaemon daemon(bus);
    return await<std::optional<bool>>([&](auto answer) { daemon.isThere(std::move(answer)); }, std::nullopt)
        .value();
}

TEST(NotificationDaemonTest, IsThereWhileItsNameIsTakenOnTheBus) {
    if (!PrivateSession::isPossible())
        GTEST_SKIP() << "This machine has no programs for a session of the test's own.";
    EXPECT_FALSE(isThere(QDBusConnection(QStringLiteral("there is none"))));
    const PrivateSession session;
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    {
        auto bus = QDBusConnection::connectToBus(address, QStringLiteral("daemon of the test"));
        EXPECT_FALSE(isThere(bus));
        bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
        EXPECT_TRUE(isThere(bus));
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("daemon of the test"));
}

} // namespace
} // namespace tessivo
