#include "Reminders/QueuedNotificationCenter.h"

#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "fakes/FakeNotificationQueue.h"
#include "fakes/MemoryEventStore.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "standard/ThreadWorkQueue.h"
#include "support/Events.h"

#include <gmock/gmock.h>

#include <future>
#include <memory>
#include <optional>
#include <set>

namespace tessivo {
namespace {

using testing::ElementsAre;

class QueuedNotificationCenterTest : public testing::Test {
protected:
    QueuedNotificationCenterTest() { start(calendar, queueCalendar); }

    void start(const Calendar& device, const Calendar& inQueue) {
        center.emplace(
            QueuedNotificationCenter::Machine{queue, device, inQueue, line, line},
            std::make_unique<ThreadWorkQueue>(),
            [this](auto answer) { questions.push_back(std::move(answer)); }, [this] { ++timesTold; });
    }

    static NotificationRequest request(const std::string& identifier,
                                       const DateComponents& components = {2027, 1, 31, 9, 0, {}}) {
        return {identifier, {"Title", "words", true}, {components, false}};
    }

    Outcome add(const NotificationRequest& added) {
        std::promise<Outcome> outcome;
        center->add(added, [&](const Outcome& error) { outcome.set_value(error); });
        return outcome.get_future().get();
    }

    std::vector<std::string> identifiers() const {
        std::vector<std::string> all;
        for (const auto& queued : *disk.pending)
            all.push_back(queued.request.identifier);
        return all;
    }

    fakes::Timeline line{instantAt(1'800'000'000)};
    IcuCalendar calendar{"en_US", "America/New_York"};
    IcuCalendar queueCalendar{"en_US", "America/New_York"};
    fakes::QueueDisk disk;
    fakes::FakeNotificationQueue queue{disk};
    std::vector<std::function<void(bool)>> questions;
    int timesTold = 0;
    std::optional<QueuedNotificationCenter> center;
};

struct ComponentsCase {
    const char* name;
    DateComponents components;
    bool isMoment;
};

class ComponentsTest : public QueuedNotificationCenterTest,
                       public testing::WithParamInterface<ComponentsCase> {};

TEST_P(ComponentsTest, AreRefusedWhereTheyNameNoMoment) {
    EXPECT_EQ(add(request("a", GetParam().components)) == std::nullopt, GetParam().isMoment);
    center->finish();
    EXPECT_EQ(disk.pending->size(), GetParam().isMoment ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Cases, ComponentsTest,
                         testing::Values(ComponentsCase{"ADay", {2027, 1, 31, {}, {}, {}}, true},
                                         ComponentsCase{
                                             "TheLastSecondOfADay", {2027, 1, 31, 23, 59, 59}, true},
                                         ComponentsCase{"LeapDay", {2028, 2, 29, 0, 0, {}}, true},
                                         ComponentsCase{"SkippedByTheClocks", {2027, 3, 14, 2, 30, {}}, true},
                                         ComponentsCase{"NoLeapYear", {2027, 2, 29, 0, 0, {}}, false},
                                         ComponentsCase{"MonthZero", {2027, 0, 1, 0, 0, {}}, false},
                                         ComponentsCase{"DayZero", {2027, 1, 0, 0, 0, {}}, false},
                                         ComponentsCase{"Month13", {2027, 13, 1, 0, 0, {}}, false},
                                         ComponentsCase{"Hour24", {2027, 1, 1, 24, 0, {}}, false},
                                         ComponentsCase{"MinuteBelowZero", {2027, 1, 1, 0, -1, {}}, false},
                                         ComponentsCase{"Second60", {2027, 1, 1, 0, 0, 60}, false},
                                         ComponentsCase{"NoYear", {{}, 1, 1, 0, 0, {}}, false},
                                         ComponentsCase{"Nothing", {}, false}),
                         [](const auto& test) { return test.param.name; });

TEST_F(QueuedNotificationCenterTest, AnotherCalendarsDaysGoIntoTheQueueInItsOwn) {
    const IcuCalendar persian("fa_IR", "Asia/Tehran");
    const IcuCalendar gregorian("en_US", "Asia/Tehran");
    start(persian, gregorian);
    const DateComponents newYear{1406, 1, 1, 0, 30, {}};
    ASSERT_EQ(add(request("a", newYear)), std::nullopt);
    std::promise<DateComponents> pending;
    center->getPendingNotificationRequests(
        [&](const auto& all) { pending.set_value(all->at(0).trigger.dateComponents); });
    EXPECT_EQ(pending.get_future().get(), newYear);
    center->finish();
    EXPECT_EQ(disk.pending->front().request.trigger.dateComponents, (DateComponents{2027, 3, 21, 0, 30, {}}));
}

// The line stands at 8:00:00 UTC on 15 January 2027.
TEST_F(QueuedNotificationCenterTest, AMomentGoneByNeverFiresAndStillReplacesTheFormerRequest) {
    const DateComponents thisMinute{2027, 1, 15, 3, 0, {}};
    EXPECT_EQ(add(request("a", thisMinute)), std::nullopt);
    EXPECT_EQ(identifiers(), std::vector<std::string>{"a"}) << "its moment is now";
    line.setWall(line.now() + Seconds(1));
    EXPECT_EQ(add(request("b", thisMinute)), std::nullopt);
    EXPECT_EQ(add(request("a", thisMinute)), std::nullopt);
    EXPECT_TRUE(identifiers().empty());
    EXPECT_EQ(add(request("a")), std::nullopt);
    EXPECT_EQ(identifiers(), std::vector<std::string>{"a"});
}

TEST_F(QueuedNotificationCenterTest, CompletionsStayOffTheMainThread) {
    std::promise<std::thread::id> thread;
    center->getNotificationSettings(
        [&](AuthorizationStatus) { thread.set_value(std::this_thread::get_id()); });
    EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
}

TEST_F(QueuedNotificationCenterTest, TellsTheHelperOnceWhenTheWorkIsDoneAndNotForMereLooks) {
    center->getPendingNotificationRequests([](const auto&) {});
    center->getNotificationSettings([](AuthorizationStatus) {});
    center->finish();
    EXPECT_EQ(timesTold, 0);

    start(calendar, queueCalendar);
    std::promise<void> go;
    center->getNotificationSettings([ready = go.get_future().share()](AuthorizationStatus) { ready.wait(); });
    for (const auto* identifier : {"a", "b", "c"})
        center->add(request(identifier), [](const Outcome&) {});
    center->removePendingNotificationRequests({"a"});
    go.set_value();
    center->finish();
    EXPECT_EQ(timesTold, 1);
    EXPECT_THAT(identifiers(), ElementsAre("b", "c"));
}

TEST_F(QueuedNotificationCenterTest, ALossIsMadeGoodOnceAndTheHelperIsToldAtEachStart) {
    disk.hasLoss = true;
    int restored = 0;
    const auto restore = [&] {
        ++restored;
        center->getPendingNotificationRequests([&](const auto&) {
            center->add(request("a"), [&](const Outcome&) { EXPECT_TRUE(disk.hasLoss); });
        });
    };
    for (int programStart = 1; programStart <= 2; ++programStart) {
        const int toldBefore = timesTold;
        start(calendar, queueCalendar);
        center->begin(restore);
        std::promise<void> done;
        center->getNotificationSettings([&](AuthorizationStatus) { done.set_value(); });
        done.get_future().wait();
        line.runPosted();
        center->finish();
        EXPECT_GT(timesTold, toldBefore)
            << "at the start; of the change with it where that comes soon enough";
    }
    EXPECT_EQ(restored, 1);
    EXPECT_THAT(identifiers(), ElementsAre("a"));
    EXPECT_FALSE(disk.hasLoss);
}

TEST_F(QueuedNotificationCenterTest, FinishDoesAlsoWhatCompletionsAskFor) {
    center->getPendingNotificationRequests([&](const auto&) {
        center->add(request("a"), [&](const Outcome&) {
            center->removePendingNotificationRequests({"a"});
            center->add(request("b"), [](const Outcome&) {});
        });
    });
    center->finish();
    EXPECT_THAT(identifiers(), ElementsAre("b"));
}

TEST_F(QueuedNotificationCenterTest, DestroyingItAtWorkCallsNothingAfterwards) {
    auto stillThere = std::make_shared<bool>(true);
    for (int number = 0; number < 1000; ++number)
        center->getNotificationSettings([stillThere](AuthorizationStatus) { EXPECT_TRUE(*stillThere); });
    center.reset();
    *stillThere = false;
    EXPECT_EQ(stillThere.use_count(), 1);
}

TEST_F(QueuedNotificationCenterTest, TheSettingsPageAnswersAnOpenQuestionAndMayChangeTheAnswer) {
    std::promise<bool> answer;
    center->requestAuthorization(7, [&](bool granted, const Outcome&) { answer.set_value(granted); });
    center->setAuthorization(true);
    EXPECT_TRUE(answer.get_future().get());
    center->setAuthorization(false);
    EXPECT_NE(add(request("a")), std::nullopt);
    EXPECT_EQ(disk.authorization, AuthorizationStatus::Denied);
}

TEST_F(QueuedNotificationCenterTest, AnAnswerThatComesAfterTheEndIsIgnored) {
    center->requestAuthorization(7, [](bool, const Outcome&) { FAIL(); });
    center->finish();
    line.runPosted();
    ASSERT_EQ(questions.size(), 1U);
    center.reset();
    questions[0](true);
    EXPECT_EQ(disk.authorization, AuthorizationStatus::NotDetermined);
}

TEST_F(QueuedNotificationCenterTest, AQueueThatFailsIsToldOrGivesNothing) {
    EXPECT_EQ(add(request("a")), std::nullopt);
    center->finish();
    disk.writeFailure = Error{"SQLite", 13, "database or disk is full"};
    disk.readFailure = Error{"SQLite", 10, "disk I/O error"};
    start(calendar, queueCalendar);
    EXPECT_EQ(add(request("b")), disk.readFailure);
    std::promise<std::size_t> size;
    center->getPendingNotificationRequests([&](const auto& all) { size.set_value(all->size()); });
    EXPECT_EQ(size.get_future().get(), 0U);
    std::promise<Outcome> asked;
    center->requestAuthorization(7, [&](bool granted, const Outcome& error) {
        EXPECT_FALSE(granted);
        asked.set_value(error);
    });
    EXPECT_EQ(asked.get_future().get(), disk.readFailure);
}

// The pass continues on the main thread while its answers arrive on the center's.
TEST_F(QueuedNotificationCenterTest, ThePassAndItsAnswersRunBesideEachOther) {
    const IcuDateFormatters formatters("en_US", "America/New_York");
    fakes::RecordingConsole console;
    fakes::MemoryEventStore store;
    CoreDataStack shared(store, console);
    ReminderScheduler scheduler(*center, calendar, formatters, line, console);
    FetchEventDataType pass(store, shared, scheduler, formatters, calendar, line, console);
    constexpr int events = 60;
    for (int number = 0; number < events; ++number) {
        EventItem item =
            plainEvent(std::to_string(number), "0" + std::to_string(1 + number % 9) + " January 2027",
                       Uuid{{static_cast<std::uint8_t>(number)}});
        item.timeEvent = std::to_string(1 + number % 11) + ":00 AM";
        item.repEvent = static_cast<std::int16_t>(number % 2);
        item.alertReminder = item.repReminder = 0;
        item.eventType = number % 3 != 0;
        shared.addEvent(item);
    }
    for (int minute = 0; minute < 20; ++minute) {
        pass.refreshEvents();
        for (const auto& event : shared.fetchEvents()) {
            shared.updateTitle(*event->id(), "title of minute " + std::to_string(minute));
            scheduler.editTitle(*event);
        }
        line.advance(Seconds(60));
    }
    center->finish();
    // Which title a request ends up with depends on which answer came last; that each event has exactly one
    // does not.
    std::set<std::string> identifiers;
    std::set<std::optional<int>> hoursOfPastReminders;
    for (const auto& queued : *disk.pending) {
        const auto& fields = queued.request.trigger.dateComponents;
        if (fields.second) // to the second: of a past event
            hoursOfPastReminders.insert(fields.hour);
        identifiers.insert(queued.request.identifier);
        EXPECT_THAT(queued.request.content.title, testing::StartsWith("title of minute"));
    }
    EXPECT_EQ(hoursOfPastReminders.size(), 1U) << "all were reckoned from the last row of the pass";
    EXPECT_EQ(disk.pending->size(), static_cast<std::size_t>(events));
    EXPECT_EQ(identifiers.size(), static_cast<std::size_t>(events));
}

} // namespace
} // namespace tessivo
