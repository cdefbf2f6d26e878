#include "qtdesktop/DesktopPreferences.h"

#include "processes/PrivateSession.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <map>

namespace tessivo {
namespace {

/// The settings portal and the accessibility bus on a bus of the test's own.
class StandInDesktop final : public QDBusVirtualObject {
public:
    explicit StandInDesktop(const QString& address)
        : bus(QDBusConnection::connectToBus(address, QStringLiteral("stand-in desktop"))) {
        bus.registerVirtualObject(QStringLiteral("/org"), this, QDBusConnection::SubPath);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
        bus.registerService(QStringLiteral("org.a11y.Bus"));
    }
    ~StandInDesktop() override { QDBusConnection::disconnectFromBus(QStringLiteral("stand-in desktop")); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const auto found = values.find(message.arguments().value(1).toString().toStdString());
        const auto twice = [](const QVariant& value) {
            return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value))));
        };
        return connection.send(found == values.end()
                                   ? message.createErrorReply(QDBusError::Failed, QStringLiteral("unknown"))
                                   : message.createReply(twice(found->second)));
    }

    void changeSetting(const char* key, const QVariant& value) const {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                 QStringLiteral("org.freedesktop.portal.Settings"),
                                                 QStringLiteral("SettingChanged"));
        signal.setArguments(
            {QStringLiteral("any"), QString::fromLatin1(key), QVariant::fromValue(QDBusVariant(value))});
        bus.send(signal);
    }
    void changeStatus(bool screenReader) const {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/a11y/bus"),
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("PropertiesChanged"));
        signal.setArguments({QStringLiteral("org.a11y.Status"),
                             QVariantMap{{QStringLiteral("ScreenReaderEnabled"), screenReader}},
                             QStringList()});
        bus.send(signal);
    }

    QDBusConnection bus;
    std::map<std::string, QVariant> values;
};

TEST(DesktopPreferencesTest, AreReadAtTheStartAndFollowed) {
    if (!PrivateSession::isPossible())
        GTEST_SKIP() << "This machine has no programs for a session of the test's own.";
    const PrivateSession session;
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    StandInDesktop desktop(address);
    desktop.values = {{"enable-animations", false},
                      {"high-contrast", true},
                      {"ScreenReaderEnabled", true},
                      {"text-scaling-factor", 1.5}};

    UserPreferences now;
    const auto become = [&](const UserPreferences& wanted) {
        QElapsedTimer timer;
        timer.start();
        while (!(now == wanted) && timer.elapsed() < 10'000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        return now == wanted;
    };
    {
        DesktopPreferences preferences(
            QDBusConnection::connectToBus(address, QStringLiteral("preferences of the test")));
        preferences.onChange([&](const UserPreferences& changed) { now = changed; });
        EXPECT_EQ(now, UserPreferences()) << "nobody waits for the bus";
        EXPECT_TRUE(
            become({.reducedMotion = true, .highContrast = true, .screenReader = true, .textScale = 1.5}));
        desktop.changeSetting("enable-animations", true);
        desktop.changeSetting("color-scheme", true);
        desktop.changeSetting("text-scaling-factor", 300.0);
        EXPECT_TRUE(become({.highContrast = true, .screenReader = true, .textScale = 2}));
        desktop.changeStatus(false);
        desktop.changeSetting("high-contrast", false);
        desktop.changeSetting("text-scaling-factor", 1.0);
        EXPECT_TRUE(become({}));
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("preferences of the test"));
}

} // namespace
} // namespace tessivo
