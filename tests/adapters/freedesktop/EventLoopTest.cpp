#include "freedesktop/EventLoop.h"

#include "fakes/RecordingConsole.h"
#include "freedesktop/FileWatch.h"
#include "freedesktop/TimerfdAlarm.h"
#include "standard/SystemClock.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/resource.h>

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
    fakes::RecordingConsole console;
};

TEST_F(EventLoopTest, AnAlarmRingsOnceWhenItsMomentHasComeAndNotBefore) {
    TimerfdAlarm alarm(loop.value(), console);
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
    TimerfdAlarm alarm(loop.value(), console);
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
    TimerfdAlarm alarm(loop.value(), console);
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

/// While it lives, the process gets no more descriptors.
class DescriptorShortage {
public:
    DescriptorShortage() {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        auto none = before_;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    DescriptorShortage(const DescriptorShortage&) = delete;
    DescriptorShortage& operator=(const DescriptorShortage&) = delete;
    ~DescriptorShortage() { ::setrlimit(RLIMIT_NOFILE, &before_); }

private:
    rlimit before_{};
};

TEST_F(EventLoopTest, WithoutATimerTheClockIsLookedAtInsteadAndTheConsoleIsTold) {
    TimerfdAlarm alarm(loop.value(), console);
    const DescriptorShortage shortage;
    int dropped = 0;
    const auto far = alarm.wakeAt(clock.now() + Seconds(3600), [] { FAIL(); });
    alarm.wakeAt(clock.now(), [&] { ++dropped; }).end();
    const auto due = alarm.wakeAt(clock.now(), [&] { loop.value().quit(7); });
    EXPECT_EQ(loop.value().run(), 7);
    EXPECT_EQ(dropped, 0);
    EXPECT_THAT(console.lines(), testing::Each(testing::HasSubstr("half a minute late")));
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
    ASSERT_EQ(loop.value().onSignals({SIGTERM}, [&] { loop.value().quit(3); }), std::nullopt);
    std::raise(SIGTERM);
    EXPECT_EQ(loop.value().run(), 3);
}

} // namespace
} // namespace tessivo::freedesktop
