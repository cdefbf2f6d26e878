#include "qtdesktop/DesktopActivation.h"

#include "qtdesktop/DesktopPortal.h"

#include "adapters/qtdesktop/OnPortal.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace tessivo {
namespace {

using testing::ElementsAre;

template <class Condition>
bool comesTrue(Condition condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

class OnBus : public testing::Test {
protected:
    explicit OnBus(const QDBusConnection& connection) : bus(connection) {}

    QDBusConnection bus;
};

class DesktopActivationTest : public OnPortal<OnBus> {
protected:
    DesktopActivation first{bus, [this](const DesktopActivation::Request& request) {
                                asked.push_back(request.action.toStdString() + "/" +
                                                request.activationToken.toStdString());
                            }};
    std::vector<std::string> asked;
};

TEST_F(DesktopActivationTest, TheFirstProgramDoesItsActionOnceItsLoopRuns) {
    ASSERT_TRUE(first.claim(QStringLiteral("new-event")));
    EXPECT_THAT(asked, ElementsAre());
    ASSERT_TRUE(comesTrue([&] { return !asked.empty(); }));
    EXPECT_THAT(asked, ElementsAre("new-event/"));
}

TEST_F(DesktopActivationTest, ASecondProgramHandsItsActionAndItsTokenToTheFirst) {
    ASSERT_TRUE(first.claim({}));
    ::setenv("XDG_ACTIVATION_TOKEN", "permission", 1);
    for (const char* action : {"new-event", ""}) {
        bool isFirst = true;
        std::atomic<bool> isDone = false;
        std::thread second([&, action] { // a program of its own: it waits for the first one's answer
            const QString name = QStringLiteral("second");
            {
                const auto own =
                    QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name);
                isFirst = DesktopActivation(own, [](const auto&) {}).claim(QString::fromLatin1(action));
            }
            QDBusConnection::disconnectFromBus(name);
            isDone = true;
        });
        EXPECT_TRUE(comesTrue([&] { return isDone.load(); }));
        second.join();
        EXPECT_FALSE(isFirst);
    }
    ::unsetenv("XDG_ACTIVATION_TOKEN");
    EXPECT_THAT(asked, ElementsAre("new-event/permission", "/permission"));
}

TEST_F(DesktopActivationTest, ASandboxAsksItsPortalForAStartAtLogin) {
    desktop::DesktopPortal sandbox(bus);
    std::vector<desktop::DesktopPortal::Answer> answers;
    const auto ask = [&] {
        sandbox.startAtLogin(QStringLiteral("Reminders"), {QStringLiteral("tessivo-reminders")},
                             [&](auto answer) { answers.push_back(answer); });
        const auto before = answers.size();
        return comesTrue([&] { return answers.size() > before; });
    };
    ASSERT_TRUE(ask());
    ASSERT_EQ(portal.asked.size(), 1U);
    EXPECT_EQ(portal.asked[0].interface + "." + portal.asked[0].method,
              "org.freedesktop.portal.Background.RequestBackground");
    EXPECT_EQ(portal.asked[0].options[QStringLiteral("commandline")].toStringList(),
              QStringList{QStringLiteral("tessivo-reminders")});
    EXPECT_TRUE(portal.asked[0].options[QStringLiteral("autostart")].toBool());
    portal.refuses = true;
    ASSERT_TRUE(ask());
    EXPECT_THAT(answers,
                ElementsAre(desktop::DesktopPortal::Answer::Done, desktop::DesktopPortal::Answer::Absent));
}

} // namespace
} // namespace tessivo
