#include "freedesktop/EventLoop.h"

#include "freedesktop/FileWatch.h"
#include "freedesktop/TimerfdAlarm.h"
#include "standard/SystemClock.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

namespace tessivo::freedesktop {
namespace {

class EventLoopTest : public testing::Test {
protected:
    /// Runs the loop until it has nothing to do at once.
    void runReady() {
        while (sd_event_run(loop.value().handle(), 0) > 0) {
        }
    }

    Result<EventLoop> loop = EventLoop::make();
    SystemClock clock;
};

TEST_F(EventLoopTest, AnAlarmRingsOnceWhenItsMomentHasComeAndNotBefore) {
    TimerfdAlarm alarm(loop.value());
    const auto due = clock.now() + Seconds(0.02);
    Instant rung;
    const auto handle = alarm.wakeAt(due, [&] {
        rung = clock.now();
        loop.value().quit(7);
    });
    EXPECT_EQ(loop.value().run(), 7);
    EXPECT_GE(secondsSince1970(rung), secondsSince1970(due) - 1e-5);
}

TEST_F(EventLoopTest, AlarmsForMomentsGoneByRingAtOnceAndDroppedOnesNever) {
    TimerfdAlarm alarm(loop.value());
    int past = 0;
    int ancient = 0;
    int dropped = 0;
    int far = 0;
    const auto first = alarm.wakeAt(clock.now() - Seconds(60), [&] { ++past; });
    const auto second = alarm.wakeAt(instantAt(-1e12), [&] { ++ancient; });
    const auto third = alarm.wakeAt(Instant::max(), [&] { ++far; });
    alarm.wakeAt(clock.now() - Seconds(60), [&] { ++dropped; }).end();
    EXPECT_EQ(past, 0); // never inline
    runReady();
    EXPECT_EQ(past, 1);
    EXPECT_EQ(ancient, 1);
    EXPECT_EQ(dropped, 0);
    EXPECT_EQ(far, 0);
}

TEST_F(EventLoopTest, AnAlarmMayBeSetAnewWhileItRings) {
    TimerfdAlarm alarm(loop.value());
    Subscription handle;
    int rings = 0;
    std::function<void()> again = [&] {
        if (++rings < 3)
            handle = alarm.wakeAt(clock.now(), again);
    };
    handle = alarm.wakeAt(clock.now(), again);
    for (int turn = 0; turn < 100 && rings < 3; ++turn)
        sd_event_run(loop.value().handle(), 100'000);
    EXPECT_EQ(rings, 3);
}

TEST_F(EventLoopTest, AWatchedFileIsHeardOfWhenItIsReplacedOrWritten) {
    const TemporaryFolder folder;
    const auto file = folder / "program";
    std::ofstream(file) << "old";
    int changes = 0;
    auto watch = watchFile(loop.value(), file, [&] { ++changes; });
    std::ofstream(folder / "new") << "new";
    runReady();
    EXPECT_EQ(changes, 0);
    std::filesystem::rename(folder / "new", file);
    runReady();
    EXPECT_EQ(changes, 1);
    std::ofstream(file) << "newer";
    runReady();
    EXPECT_EQ(changes, 2);
    watch.end();
    std::ofstream(file) << "newest";
    runReady();
    EXPECT_EQ(changes, 2);
}

TEST_F(EventLoopTest, AWatchedLinkIsHeardOfWhenItPointsElsewhere) {
    const TemporaryFolder folder;
    const auto link = folder / "localtime";
    std::filesystem::create_symlink("Berlin", link);
    int changes = 0;
    const auto watch = watchFile(loop.value(), link, [&] { ++changes; });
    std::filesystem::remove(link);
    std::filesystem::create_symlink("Tokyo", link);
    runReady();
    EXPECT_EQ(changes, 1);
}

TEST_F(EventLoopTest, TheLoopIsToldToEndInPlaceOfTheProcess) {
    ASSERT_EQ(loop.value().onTermination([&] { loop.value().quit(3); }), std::nullopt);
    std::raise(SIGTERM);
    EXPECT_EQ(loop.value().run(), 3);
}

} // namespace
} // namespace tessivo::freedesktop
