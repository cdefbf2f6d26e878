#include "Reminders/ReminderEngine.h"

#include "FakeDesktop.h"
#include "fakes/FakeNotificationQueue.h"
#include "fakes/FakeWallAlarm.h"
#include "fakes/OffsetCalendar.h"
#include "fakes/RecordingConsole.h"

#include <gmock/gmock.h>

#include <memory>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::Pair;

constexpr Seconds minute{60};
constexpr Seconds hour{3600};
constexpr Seconds day{24 * 3600};

/// The engine with a queue, a desktop and a clock, each of which a test can take away and give back.
class ReminderEngineTest : public testing::Test {
protected:
    struct Process {
        explicit Process(ReminderEngineTest& test)
            : queue(test.disk),
              display(test.line, test.desktop),
              alarm(test.line),
              engine({queue, display, alarm, test.app, test.line, test.calendar, test.console}) {
            engine.processDue();
        }

        fakes::FakeNotificationQueue queue;
        FakeDisplay display;
        fakes::FakeWallAlarm alarm;
        ReminderEngine engine;
    };

    void start() { process = std::make_unique<Process>(*this); }
    void kill() { process.reset(); }
    void restart() {
        kill();
        start();
    }

    /// Adds a request as the app does: through its own instance of the queue, then notifies the helper if
    /// there is one.
    void add(const std::string& identifier, Seconds fromNow, const std::string& body = "") {
        const auto when = calendar.components(line.now() + fromNow);
        EXPECT_EQ(
            fakes::FakeNotificationQueue(disk).add({identifier, {identifier, body, true}, {when, false}}),
            std::nullopt);
        if (process)
            process->engine.processDue();
    }

    void jump(Seconds distance) {
        line.setWall(line.now() + distance);
        if (process)
            process->alarm.clockWasSet();
        line.advance(Seconds(0.1));
    }

    std::vector<std::string> titles() const {
        std::vector<std::string> all;
        for (const auto& shown : desktop.shown)
            all.push_back(shown.notice.title);
        return all;
    }

    fakes::Timeline line{instantAt(1'800'000'000)};
    fakes::OffsetCalendar calendar;
    fakes::QueueDisk disk;
    fakes::RecordingConsole console;
    FakeDesktop desktop;
    FakeAppActivation app;
    std::unique_ptr<Process> process;
};

TEST_F(ReminderEngineTest, ShowsARequestAtItsMomentOnceAndRetiresIt) {
    start();
    add("dentist", hour, "Bring the card");
    line.advance(hour - Seconds(1));
    EXPECT_THAT(titles(), IsEmpty());
    line.advance(Seconds(1.1));
    ASSERT_THAT(titles(), ElementsAre("dentist"));
    EXPECT_EQ(desktop.shown[0].notice, (Notice{"dentist", "Bring the card", true}));
    EXPECT_THAT(*disk.pending, IsEmpty());
    restart();
    line.advance(10 * day);
    EXPECT_EQ(desktop.shown.size(), 1U);
}

TEST_F(ReminderEngineTest, SleepsWithoutAWakeWhileNothingIsDue) {
    start();
    EXPECT_EQ(line.pending(), 0U);
    add("far", 2 * hour);
    line.advance(hour);
    EXPECT_EQ(process->alarm.wakes(), 0);
}

TEST_F(ReminderEngineTest, ShowsWhatCameDueWhileItDidNotRun) {
    add("missed", hour);
    line.advance(2 * hour);
    start();
    line.advance(Seconds(0.1));
    EXPECT_THAT(titles(), ElementsAre("missed"));
}

TEST_F(ReminderEngineTest, FollowsClockJumpsInBothDirections) {
    start();
    add("soon", hour);
    jump(-day);
    line.advance(2 * hour);
    EXPECT_THAT(titles(), IsEmpty());
    jump(day);
    EXPECT_THAT(titles(), ElementsAre("soon"));
    jump(-day);
    line.advance(2 * day);
    EXPECT_THAT(titles(), ElementsAre("soon"));
}

TEST_F(ReminderEngineTest, FollowsTheDeviceIntoAnotherTimeZone) {
    start();
    add("breakfast", 5 * hour);
    calendar.setOffset(3 * hour);
    process->engine.processDue();
    line.advance(2 * hour + Seconds(1));
    EXPECT_THAT(titles(), ElementsAre("breakfast"));
}

TEST_F(ReminderEngineTest, AChangedRequestCountsFromThenOn) {
    start();
    add("moved", hour);
    add("removed", hour);
    add("moved", 2 * hour);
    ASSERT_EQ(process->queue.remove({"removed"}), std::nullopt);
    process->engine.processDue();
    line.advance(hour + minute);
    EXPECT_THAT(titles(), IsEmpty());
    line.advance(hour);
    EXPECT_THAT(titles(), ElementsAre("moved"));
}

TEST_F(ReminderEngineTest, ARequestReplacedWhileItsPredecessorIsShownKeepsItsPlace) {
    start();
    process->display.setLatency(Seconds(1), Seconds(1));
    add("daily", minute);
    line.advance(minute + Seconds(1.5));
    add("daily", day);
    line.advance(minute);
    ASSERT_EQ(disk.pending->size(), 1U);
    line.advance(day);
    EXPECT_THAT(titles(), ElementsAre("daily", "daily"));
}

struct GroupingCase {
    const char* name;
    std::vector<Seconds> ages; ///< how long ago each request came due
    std::vector<std::string> titles;
};

class ReminderGroupingTest : public ReminderEngineTest, public testing::WithParamInterface<GroupingCase> {};

TEST_P(ReminderGroupingTest, GroupsWhatIsOldOrTooMuch) {
    int number = 0;
    for (const auto age : GetParam().ages)
        add("r" + std::to_string(++number), -age);
    start();
    line.advance(Seconds(1));
    EXPECT_EQ(titles(), GetParam().titles);
    EXPECT_THAT(*disk.pending, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ReminderGroupingTest,
    testing::Values(
        GroupingCase{"FiveComeSingly", {hour, hour, hour, hour, hour}, {"r1", "r2", "r3", "r4", "r5"}},
        GroupingCase{"SixComeTogether", {hour, hour, hour, hour, hour, hour}, {"Tessivo (6)"}},
        GroupingCase{"ADayIsNotYetOld", {day, day - minute}, {"r1", "r2"}},
        GroupingCase{"OldOnesComeTogether", {2 * day, minute, 3 * day}, {"Tessivo (2)", "r2"}},
        GroupingCase{"AnOldOneAloneSpeaksForItself", {2 * day}, {"r1"}},
        GroupingCase{"OldAndFreshAreCountedTogether",
                     {2 * day, 2 * day, 2 * day, minute, minute, minute},
                     {"Tessivo (6)"}},
        GroupingCase{"TheEarliestComesFirst", {minute, hour}, {"r2", "r1"}}),
    [](const auto& parameter) { return parameter.param.name; });

TEST_F(ReminderEngineTest, AGroupListsItsRequestsAsFarAsThereIsRoom) {
    for (int number = 1; number <= 12; ++number)
        add("r" + std::to_string(number), -hour + Seconds(number), number == 1 ? "words" : "");
    start();
    line.advance(Seconds(1));
    ASSERT_EQ(desktop.shown.size(), 1U);
    EXPECT_EQ(desktop.shown[0].notice,
              (Notice{"Tessivo (12)", "r1 – words\nr2\nr3\nr4\nr5\nr6\nr7\nr8\nr9\nr10\n+2", true}));
}

TEST_F(ReminderEngineTest, KeepsWhatNobodyCanShowUntilADesktopComesUp) {
    desktop.isUp = false;
    start();
    add("kept", minute);
    line.advance(hour / 2);
    EXPECT_EQ(disk.pending->size(), 1U);
    // It retries at growing intervals: after 1, 2, 4, 8 minutes.
    EXPECT_EQ(process->display.calls, 5);
    process->display.comeUp();
    line.advance(Seconds(0.1));
    EXPECT_THAT(titles(), ElementsAre("kept"));
    EXPECT_THAT(*disk.pending, IsEmpty());
}

TEST_F(ReminderEngineTest, WhatIsShownIsNotShownAgainWhileTheLedgerCannotBeWritten) {
    start();
    add("once", minute);
    disk.writeFailure = Error{"SQLite", 13, "database or disk is full"};
    line.advance(3 * hour);
    EXPECT_THAT(titles(), ElementsAre("once"));
    EXPECT_TRUE(console.printed("Reminders: database or disk is full"));
    disk.writeFailure.reset();
    line.advance(hour);
    EXPECT_THAT(*disk.pending, IsEmpty());
    restart();
    line.advance(hour);
    EXPECT_THAT(titles(), ElementsAre("once"));
}

TEST_F(ReminderEngineTest, ReadsAQueueAgainThatCouldNotBeRead) {
    add("late", -minute);
    disk.readFailure = Error{"SQLite", 10, "disk I/O error"};
    start();
    line.advance(Seconds(10));
    EXPECT_THAT(titles(), IsEmpty());
    disk.readFailure.reset();
    line.advance(minute);
    EXPECT_THAT(titles(), ElementsAre("late"));
}

TEST_F(ReminderEngineTest, WhatComesDueWhileTheUserDeniesGoesByUnseen) {
    disk.authorization = AuthorizationStatus::Denied;
    start();
    add("unwanted", minute);
    add("later", hour);
    line.advance(2 * minute);
    EXPECT_EQ(disk.pending->size(), 1U);
    disk.authorization = AuthorizationStatus::Authorized;
    line.advance(hour);
    EXPECT_THAT(titles(), ElementsAre("later"));
}

TEST_F(ReminderEngineTest, AClickOnItsOwnNotificationOpensTheAppAlsoAfterARestart) {
    start();
    add("clicked", minute);
    line.advance(2 * minute);
    restart();
    process->display.open("of-another-program", "x");
    process->display.open(desktop.shown.at(0).token, "permission");
    EXPECT_THAT(app.activations, ElementsAre(Pair("permission", Optional<std::string>("clicked"))));
}

TEST_F(ReminderEngineTest, AClickOnAGroupOpensTheAppWithoutAnEvent) {
    for (int number = 0; number < 6; ++number)
        add(std::to_string(number), minute);
    line.advance(2 * day);
    start();
    line.advance(Seconds(0.1));
    process->display.open(desktop.shown.at(0).token, "");
    EXPECT_THAT(app.activations, ElementsAre(Pair("", testing::Eq(std::nullopt))));
}

TEST_F(ReminderEngineTest, HandsOverOnlyWhenTheLedgerIsWritten) {
    start();
    process->display.setLatency(Seconds(1), Seconds(1));
    add("underWay", minute);
    add("next", minute + Seconds(1));
    line.advance(minute + Seconds(0.5));
    bool handedOver = false;
    process->engine.finish([&] {
        handedOver = true;
        EXPECT_EQ(disk.ledger.size(), 1U);
    });
    line.advance(Seconds(1));
    EXPECT_FALSE(handedOver);
    line.advance(Seconds(10));
    EXPECT_TRUE(handedOver);
    EXPECT_THAT(titles(), ElementsAre("underWay"));
    restart();
    line.advance(Seconds(1));
    EXPECT_THAT(titles(), ElementsAre("underWay", "next"));
}

} // namespace
} // namespace tessivo
