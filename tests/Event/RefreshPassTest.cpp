#include "Event/FetchEventDataType.h"

#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Event/ReminderScheduler.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/MemoryEventStore.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "support/Events.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const auto now = instantAt(1'800'000'000); // 15 January 2027, 8:00 AM in UTC

class RefreshPassTest : public testing::Test {
protected:
    /// An event with its reminder off; tests change what matters to them.
    static EventItem event(const std::string& date, std::optional<std::string> time = std::nullopt,
                           std::int16_t repEvent = 0) {
        EventItem item = plainEvent(date, date);
        item.timeEvent = std::move(time);
        item.repEvent = repEvent;
        item.timeFormat = 1;
        return item;
    }

    Uuid add(EventItem item) {
        Uuid id;
        id.bytes.back() = static_cast<std::uint8_t>(++last);
        item.id = id;
        shared.addEvent(item);
        return id;
    }

    void refresh() {
        pass.refreshEvents();
        center.run();
    }

    std::string date(const Uuid& id) { return shared.fetchEvent(id)->dateEvent().value(); }
    bool isFuture(const Uuid& id) { return shared.fetchEvent(id)->eventType(); }

    std::optional<DateComponents> reminderOf(const Uuid& id) const {
        for (const auto& request : center.pending()) {
            if (request.identifier == id.uuidString())
                return request.trigger.dateComponents;
        }
        return std::nullopt;
    }

    fakes::Timeline line{now};
    IcuCalendar calendar{"en_US", "UTC"};
    IcuDateFormatters formatters{"en_US", "UTC"};
    fakes::MemoryEventStore store;
    fakes::FakeNotificationCenter center{AuthorizationStatus::Authorized};
    fakes::RecordingConsole console;
    CoreDataStack shared{store, console};
    ReminderScheduler scheduler{center, calendar, formatters, line, console};
    FetchEventDataType pass{store, shared, scheduler, formatters, calendar, line, console};
    int last = 0;
};

TEST_F(RefreshPassTest, AFinishedEventMovesToPastWithItsDate) {
    const auto timed = add(event("15 January 2027", "7:59 AM"));
    const auto allDay = add(event("15 January 2027"));
    refresh();
    EXPECT_FALSE(isFuture(timed));
    EXPECT_EQ(date(timed), "15 January 2027");
    EXPECT_EQ(shared.fetchEvent(timed)->timeEvent(), "7:59 AM");
    EXPECT_FALSE(isFuture(allDay));
    EXPECT_EQ(shared.fetchEvent(allDay)->timeEvent(), "");
    refresh(); // an empty time is no time
    EXPECT_EQ(date(allDay), "15 January 2027");
}

TEST_F(RefreshPassTest, AnEventOfThisVeryMomentStaysAheadUntilTheNext) {
    const auto id = add(event("15 January 2027", "8:00 AM"));
    refresh();
    EXPECT_TRUE(isFuture(id));
    line.setWall(now + Seconds(0.001));
    refresh();
    EXPECT_FALSE(isFuture(id));
}

struct StepCase {
    const char* name;
    std::int16_t repEvent;
    std::string date;
    std::vector<std::string> dates; ///< after each pass
};

class RefreshStepTest : public RefreshPassTest, public testing::WithParamInterface<StepCase> {};

TEST_P(RefreshStepTest, RollsOneStepAPass) {
    const auto id = add(event(GetParam().date, "6:00 AM", GetParam().repEvent));
    for (const auto& expected : GetParam().dates) {
        refresh();
        EXPECT_EQ(date(id), expected);
        EXPECT_TRUE(isFuture(id));
        EXPECT_EQ(shared.fetchEvent(id)->timeEvent(), "6:00 AM");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RefreshStepTest,
    testing::Values(StepCase{"DayByDayUntilItIsAhead",
                             1,
                             "12 January 2027",
                             {"13 January 2027", "14 January 2027", "15 January 2027", "16 January 2027",
                              "16 January 2027"}},
                    StepCase{"Week", 2, "10 January 2027", {"17 January 2027", "17 January 2027"}},
                    StepCase{"Fortnight", 3, "25 December 2026", {"08 January 2027", "22 January 2027"}},
                    StepCase{"MonthEndsClampAndGoOnFromThere",
                             4,
                             "31 January 2026",
                             {"28 February 2026", "28 March 2026", "28 April 2026"}},
                    StepCase{"LeapDay", 5, "29 February 2024", {"28 February 2025", "28 February 2026"}},
                    StepCase{"BeyondTheTableStandsStill", 6, "12 January 2027", {"12 January 2027"}},
                    StepCase{"BelowTheTableStandsStill", -1, "12 January 2027", {"12 January 2027"}}),
    [](const auto& test) { return test.param.name; });

TEST_F(RefreshPassTest, ARepeatingAllDayEventRollsOnItsOwnDay) {
    const auto id = add(event("15 January 2027", std::nullopt, 5));
    refresh();
    EXPECT_EQ(date(id), "15 January 2028");
}

TEST_F(RefreshPassTest, ARollCarriesTheReminderAlongUnderTheSameIdentifier) {
    auto item = event("13 January 2027", "9:00 AM", 1);
    item.alertReminder = 1;
    const auto id = add(item);
    refresh();
    EXPECT_EQ(reminderOf(id), (DateComponents{2027, 1, 14, 8, 55, {}}));
    refresh();
    EXPECT_EQ(reminderOf(id), (DateComponents{2027, 1, 15, 8, 55, {}}));
    EXPECT_EQ(center.pending().size(), 1U);
    center.removePendingNotificationRequests({id.uuidString()});
    refresh(); // it is ahead now, so the pass leaves it alone
    EXPECT_EQ(reminderOf(id), std::nullopt);
    EXPECT_THAT(console.lines(), ElementsAre("уведомление создано", "уведомление создано"));
}

TEST_F(RefreshPassTest, AnUnknownRepeatStandsStillAndItsReminderIsRenewedEachPass) {
    auto item = event("13 January 2027", "9:00 AM", 6);
    item.alertReminder = 1;
    const auto id = add(item);
    for (int time = 0; time < 2; ++time) {
        refresh();
        EXPECT_EQ(date(id), "13 January 2027");
        EXPECT_TRUE(isFuture(id));
        EXPECT_EQ(reminderOf(id), (DateComponents{2027, 1, 13, 8, 55, {}}));
        EXPECT_THAT(console.take(), ElementsAre("уведомление создано"));
    }
}

TEST_F(RefreshPassTest, AnEventThatMovesToPastRemindsByItsRepeatFromTheSamePassOn) {
    auto item = event("15 January 2027", "2:00 AM");
    item.alertReminder = 0;
    item.repReminder = 0;
    const auto id = add(item);
    refresh();
    EXPECT_EQ(reminderOf(id), (DateComponents{2027, 1, 16, 2, 0, 0}));
    center.fire(id.uuidString());
    line.setWall(now + Seconds(86400));
    refresh();
    EXPECT_EQ(reminderOf(id), (DateComponents{2027, 1, 17, 2, 0, 0}));
}

TEST_F(RefreshPassTest, AllPastRemindersOfAPassAreReckonedFromTheDateOfItsLastRow) {
    auto first = event("12 January 2027", "2:00 AM");
    auto second = event("12 January 2027", "5:00 AM");
    for (auto* item : {&first, &second}) {
        item->eventType = false;
        item->repReminder = 0;
    }
    const auto early = add(first);
    const auto late = add(second);
    pass.refreshEvents();
    EXPECT_EQ(center.waiting(), 1U) << "one look at the queue, after the last row";
    center.run();
    EXPECT_EQ(reminderOf(early), (DateComponents{2027, 1, 16, 5, 0, 0}));
    EXPECT_EQ(reminderOf(late), (DateComponents{2027, 1, 16, 5, 0, 0}));
}

TEST_F(RefreshPassTest, EventsAheadWhoseDatesDoNotReadAreLeftOut) {
    const auto foreign = add(event("12 janvier 2027", "6:00 AM", 1));
    const auto badTime = add(event("12 January 2027", "6 o'clock", 1));
    auto none = event("none");
    none.dateEvent = std::nullopt;
    add(none);
    const auto readable = add(event("14 January 2027", std::nullopt, 1));
    refresh();
    EXPECT_EQ(date(foreign), "12 janvier 2027");
    EXPECT_EQ(date(badTime), "12 January 2027");
    EXPECT_EQ(date(readable), "15 January 2027");
}

TEST_F(RefreshPassTest, APastReminderWhoseDateDoesNotReadStopsTheProgram) {
    auto item = event("12 janvier 2027");
    item.eventType = false;
    add(item);
    EXPECT_NO_THROW(refresh());
    item.repReminder = 0;
    add(item);
    EXPECT_THROW(refresh(), fakes::ProgramStopped);
}

TEST_F(RefreshPassTest, AnEventWithoutIdentityIsNotWritten) {
    shared.addEvent(event("12 January 2027"));
    shared.addEvent(event("12 January 2027", std::nullopt, 1));
    refresh();
    for (const auto& [key, record] : store.rows()) {
        EXPECT_EQ(record.dateEvent, "12 January 2027");
        EXPECT_TRUE(record.eventType);
    }
}

TEST_F(RefreshPassTest, AStoreThatCannotBeReadGivesAnEmptyPass) {
    const auto id = add(event("12 January 2027"));
    store.failNextFetch(Error{"SQLite", 10, "disk I/O error"});
    refresh();
    EXPECT_TRUE(isFuture(id));
    EXPECT_THAT(console.lines(), IsEmpty());
    refresh();
    EXPECT_FALSE(isFuture(id));
}

TEST_F(RefreshPassTest, APassThatCanChangeNothingReadsNoRow) {
    auto past = event("12 January 2027", "2:00 AM");
    past.eventType = false;
    past.repReminder = 0;
    add(past);
    add(event("15 January 2027", "8:05 AM"));
    refresh(); // adds the missing reminder
    const int fetches = store.fetches();
    for (int second = 0; second < 100; ++second) {
        line.setWall(now + Seconds(3 * second));
        refresh();
    }
    EXPECT_EQ(store.fetches(), fetches);
    line.setWall(now + Seconds(301));
    refresh();
    EXPECT_GT(store.fetches(), fetches);
    EXPECT_EQ(center.pending().size(), 1U);
}

TEST(RefreshPass, ANewTimeZoneIsNoticedAtOnce) {
    ::setenv("TZ", "Europe/Berlin", 1);
    fakes::Timeline line{now};
    const IcuCalendar calendar("en_US");
    const IcuDateFormatters formatters;
    fakes::MemoryEventStore store;
    fakes::FakeNotificationCenter center;
    fakes::RecordingConsole console;
    CoreDataStack shared{store, console};
    ReminderScheduler scheduler{center, calendar, formatters, line, console};
    FetchEventDataType pass{store, shared, scheduler, formatters, calendar, line, console};
    EventItem item;
    item.dateEvent = "15 January 2027";
    item.timeEvent = "9:30 AM"; // half an hour ahead in Berlin, and over in Tokyo
    item.repEvent = item.timeFormat = item.color = 0;
    item.alertReminder = item.repReminder = item.gradient = NO_VALUE;
    item.eventType = true;
    item.id = Uuid{};
    shared.addEvent(item);
    pass.refreshEvents();
    EXPECT_TRUE(shared.fetchEvent(Uuid{})->eventType());
    ::setenv("TZ", "Asia/Tokyo", 1);
    pass.refreshEvents();
    EXPECT_FALSE(shared.fetchEvent(Uuid{})->eventType());
    ::unsetenv("TZ");
}

/// A program of its own whose passes either remember what they saw or each begin anew.
class World {
public:
    explicit World(bool remembers) : remembers_(remembers) {}

    void pass() {
        if (!remembers_ || passes_.empty())
            passes_.push_back(std::make_unique<Pass>(*this));
        passes_.back()->fetch.refreshEvents();
        center.run();
    }

    fakes::Timeline line{now};
    IcuCalendar calendar{"en_US", "UTC"};
    IcuDateFormatters formatters{"en_US", "UTC"};
    fakes::MemoryEventStore store;
    fakes::FakeNotificationCenter center{AuthorizationStatus::Authorized};
    fakes::RecordingConsole console;
    CoreDataStack shared{store, console};

private:
    struct Pass {
        explicit Pass(World& world)
            : scheduler(world.center, world.calendar, world.formatters, world.line, world.console),
              fetch(world.store, world.shared, scheduler, world.formatters, world.calendar, world.line,
                    world.console) {}

        ReminderScheduler scheduler;
        FetchEventDataType fetch;
    };

    const bool remembers_;
    std::vector<std::unique_ptr<Pass>> passes_;
};

RC_GTEST_PROP(RefreshPassModel, WhatAPassRemembersChangesNothingThatItDoes, ()) {
    World remembering(true);
    World plain(false);
    const auto both = [&](const auto& act) {
        act(remembering);
        act(plain);
    };
    // Acts of all kinds from the first run on: left alone the ranges would grow from run to run.
    const auto number = [](int end) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, end)); };
    Instant wall = now;
    const int acts = number(40);
    for (int index = 0; index < acts; ++index) {
        Uuid id;
        id.bytes[0] = static_cast<std::uint8_t>(number(6));
        switch (number(12)) {
        case 0:
        case 1: {
            EventItem item;
            item.title = std::to_string(index);
            item.dateEvent = std::to_string(10 + number(10)) + " January 2027";
            if (number(2) == 0)
                item.timeEvent = std::to_string(1 + number(12)) + ":00 AM";
            item.repEvent = static_cast<std::int16_t>(number(7));
            item.alertReminder = number(2) == 0 ? NO_VALUE : static_cast<std::int16_t>(number(10));
            item.repReminder = number(3) == 0 ? NO_VALUE : static_cast<std::int16_t>(number(5));
            item.timeFormat = item.color = item.gradient = 0;
            item.eventType = number(2) == 0;
            if (*item.eventType && number(4) == 0)
                item.dateEvent = "nie";
            item.id = id;
            both([&](World& world) { world.shared.addEvent(item); });
            break;
        }
        case 2:
            both([&](World& world) { world.shared.deleteEvent(id); });
            break;
        case 3:
            both([&](World& world) { world.store.failNextSave(Error{"Disk", 28, "full"}); });
            break;
        case 4:
            both([&](World& world) {
                world.store.failNextFetch(Error{"Disk", 5, "broken"});
                world.pass();
                (void)world.shared.fetchEvents(); // meets the failure where the pass did not
            });
            break;
        case 5:
            both([&](World& world) { world.center.fire(id.uuidString()); });
            break;
        case 6: {
            const bool fails = number(2) == 0;
            both([&](World& world) {
                world.center.failAdds(fails ? Outcome(Error{"Queue", 1, "no"}) : Outcome());
            });
            break;
        }
        case 7:
        case 8:
            wall += Seconds(number(100'000) - 20'000);
            both([&](World& world) { world.line.setWall(wall); });
            break;
        case 9: {
            const auto reminder = static_cast<std::int16_t>(number(5));
            both([&](World& world) { world.shared.updateReminder(id, "words", reminder, reminder); });
            break;
        }
        default:
            break;
        }
        for (int passes = number(3); passes > 0; --passes)
            both([](World& world) { world.pass(); });
        RC_ASSERT(remembering.console.lines() == plain.console.lines());
        RC_ASSERT(remembering.center.pending() == plain.center.pending());
        RC_ASSERT(remembering.store.rows() == plain.store.rows());
    }
}

TEST_F(RefreshPassTest, NothingStaysWrittenOffThatWasEditedBackIntoTheFuture) {
    const auto id = add(event("14 January 2027"));
    refresh();
    shared.updateDateAndTime(id, "16 January 2027", std::nullopt, 1, 1, true);
    line.setWall(now + Seconds(2 * 86400));
    refresh();
    EXPECT_EQ(date(id), "17 January 2027");
}

} // namespace
} // namespace tessivo
