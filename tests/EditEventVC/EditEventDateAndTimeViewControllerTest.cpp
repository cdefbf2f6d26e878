#include "EditEventVC/EditEventDateAndTimeViewController.h"

#include "SelectValueVC/TableViewController.h"
#include "support/EditTest.h"

namespace tessivo {
namespace {

using testing::ElementsAre;

class EditDateTest : public EditTest {
protected:
    EditEventDateAndTimeViewController& openOn(const EventItem& item) {
        store(item);
        return open<EditEventDateAndTimeViewController>(EditScreen::DateAndTime, row());
    }

    EventItem onDay(const std::string& day) {
        EventItem item = summer();
        item.dateEvent = day;
        item.eventType = day != "11 June 2030";
        return item;
    }

    Instant daysFromNow(double days) { return program.timeline.now() + Seconds(86400 * days); }
};

TEST_F(EditDateTest, OpensOnTheStoredValues) {
    struct Case {
        const char* day;
        std::optional<std::string> time;
        int repeat;
        bool allDay;
        const char* timeShown;
        const char* repeatShown;
        bool repeatRow;
    };
    const Case cases[] = {
        {"25 June 2030", "6:30 PM", 3, false, "6:30 PM", "Every 2 weeks", true},
        {"25 June 2030", {}, 5, true, "10:30 AM", "Every year", true},
        {"25 June 2030", "", 0, true, "10:30 AM", "Never", true},
        {"11 June 2030", "6:30 PM", 3, false, "6:30 PM", "Every 2 weeks", false},
    };
    store(summer());
    for (const auto& [day, time, repeat, allDay, timeShown, repeatShown, repeatRow] : cases) {
        SCOPED_TRACE(std::string(day) + " " + time.value_or("-"));
        const auto event = row();
        event->setDateEvent(day);
        event->setTimeEvent(time);
        event->setRepEvent(static_cast<std::int16_t>(repeat));
        event->setTimeFormat(2);
        auto& screen = open<EditEventDateAndTimeViewController>(EditScreen::DateAndTime, event);
        EXPECT_EQ(screen.dayField.text(), day);
        EXPECT_EQ(screen.toggleSwitch.isOn(), allDay);
        EXPECT_EQ(screen.toggleSwitch.sublayers().front()->isHidden(), !allDay);
        EXPECT_EQ(screen.timeField.isHidden(), allDay);
        EXPECT_EQ(screen.timeField.text(), timeShown);
        EXPECT_EQ(screen.repeatLapel.text(), repeatShown);
        EXPECT_EQ(screen.repeatLapel.isHidden(), !repeatRow);
        EXPECT_EQ(screen.segmentedControl.selectedIndex(), 2);
        EXPECT_EQ(screen.eventView.eventInformationLabel.text(), std::string("Summer\n") + day);
        screen.dismiss(false);
    }
}

TEST_F(EditDateTest, TheCardSaysWeekUntilTheFirstChangeAndThenWeeks) {
    EventItem item = summer();
    item.timeFormat = 2;
    auto& screen = openOn(item);
    EXPECT_EQ(screen.eventView.timeLabel.text(), "In 0\nWeek");
    screen.datePicker.pick(daysFromNow(15));
    EXPECT_EQ(screen.eventView.timeLabel.text(), "In 2\nWeeks");
    EXPECT_EQ(screen.eventView.eventInformationLabel.text(), "Summer\n06 July 2030");
}

TEST_F(EditDateTest, ThePickersOpenWhereTheRowsStand) {
    auto& screen = openOn(summer());
    const Instant stored = *program.dateFormatters.make("dd MMMM yyyy h:mm a")->date("25 June 2030 6:30 PM");
    screen.timeField.tap();
    EXPECT_EQ(screen.timePicker.date(), stored);
    screen.dayField.tap();
    EXPECT_EQ(screen.datePicker.date(), *program.dateFormatters.make("dd MMMM yyyy")->date("25 June 2030"));
    screen.datePicker.pick(daysFromNow(1));
    screen.timeField.tap();
    EXPECT_EQ(screen.timePicker.date(), stored - Seconds(3 * 86400));
}

TEST_F(EditDateTest, SaveStoresRemindsAnewPassesAndShowsTheLists) {
    const std::string ahead = "save Summer, 01 July 2030 6:30 PM, unit 1, repeat 0, future, 2 0 Pack, 4 9999";
    struct Case {
        const char* what;
        double days; ///< to pick
        std::int16_t alert;
        bool pending;
        std::vector<std::string> trace;
    };
    const std::string made = "> уведомление создано";
    const Case cases[] = {
        {"moved ahead, with a notification: looked up twice, each acts on what it found",
         10,
         2,
         true,
         {ahead, "look up", "look up", "pass", "-- CustomTabBarController", "remove",
          "add Summer/Pack 1.7. 18:20 repeats", "remove", "add Summer/Pack 1.7. 18:20 repeats", made, made}},
        {"without a notification none is made",
         10,
         2,
         false,
         {ahead, "look up", "look up", "pass", "-- CustomTabBarController"}},
        {"without an alert it is looked up once, and means the very moment",
         10,
         NO_VALUE,
         true,
         {"save Summer, 01 July 2030 6:30 PM, unit 1, repeat 0, future, 9999 0 Pack, 4 9999", "look up",
          "pass", "-- CustomTabBarController", "remove", "> nul", "add Summer/Pack 1.7. 18:30 repeats",
          made}},
    };
    for (const auto& [what, days, alert, pending, expected] : cases) {
        SCOPED_TRACE(what);
        EventItem item = summer();
        item.alertReminder = alert;
        if (pending)
            remind(item);
        auto& screen = openOn(item);
        screen.datePicker.pick(daysFromNow(days));
        EXPECT_EQ(save(screen), expected);
        EXPECT_EQ(center.pending().size(), pending ? 1U : 0U) << "one request remains";
        if (pending)
            center.fire(identifier);
        program.settle();
        for (const auto& left : program.services().coreDataStack().fetchEvents())
            program.services().coreDataStack().deleteEvent(*left->id());
    }
}

TEST_F(EditDateTest, ADateMovedBackGoesToPastAndRemindsByItsRepeat) {
    for (const bool repeats : {true, false}) {
        SCOPED_TRACE(repeats ? "daily" : "without a repeat");
        EventItem item = summer();
        if (!repeats)
            item.alertReminder = item.repReminder = NO_VALUE;
        remind(item);
        auto& screen = openOn(item);
        screen.datePicker.pick(daysFromNow(-10));
        EXPECT_TRUE(screen.repeatLapel.isHidden());
        const auto happened = save(screen);
        EXPECT_THAT(happened.front(), testing::HasSubstr("11 June 2030 6:30 PM, unit 1, repeat 0, past"));
        ASSERT_EQ(center.pending().size(), repeats ? 1U : 0U);
        if (repeats) {
            const auto& when = center.pending().front().trigger.dateComponents;
            EXPECT_EQ(when.day, 21) << "the next whole day after the event";
            EXPECT_EQ(when.hour, 18);
        }
        program.settle();
        program.services().coreDataStack().deleteEvent(id);
    }
}

TEST_F(EditDateTest, AllDayDropsTheTimeAndThePastKeepsItsRepeat) {
    EventItem item = onDay("11 June 2030");
    item.repEvent = 3;
    auto& screen = openOn(item);
    screen.toggleSwitch.toggle();
    screen.segmentedControl.select(4);
    EXPECT_EQ(screen.eventView.timeLabel.text(), "Since 0\nYears");
    save(screen);
    EXPECT_EQ(row()->timeEvent(), std::nullopt);
    EXPECT_EQ(row()->repEvent(), 3);
    EXPECT_EQ(row()->timeFormat(), 4);
}

TEST_F(EditDateTest, ADateBroughtBackFromThePastOffersTheRepeatAndLiesAhead) {
    auto& screen = openOn(onDay("11 June 2030"));
    EXPECT_TRUE(screen.repeatLapel.isHidden());
    screen.datePicker.pick(daysFromNow(3));
    EXPECT_FALSE(screen.repeatLapel.isHidden());
    screen.repeatLapel.tap();
    program.top<TableViewController>().tableView.tapItem(5);
    program.top<TableViewController>().dismiss();
    save(screen);
    EXPECT_TRUE(row()->eventType());
    EXPECT_EQ(row()->repEvent(), 5);
}

TEST_F(EditDateTest, WhatCannotBeEditedStopsTheProgramOrStays) {
    EventRecord record;
    record.title = "Summer";
    record.dateEvent = "25 Juni 2030";
    record.color = 0;
    const auto event = std::make_shared<EventCoreData>(record);
    const auto opened = [&] { open<EditEventDateAndTimeViewController>(EditScreen::DateAndTime, event); };
    EXPECT_THROW(opened(), fakes::ProgramStopped) << "a date in another language";
    event->setDateEvent("25 June 2030");
    event->setRepEvent(6);
    program.restart();
    EXPECT_THROW(opened(), fakes::ProgramStopped) << "a repeat that does not exist";
    event->setRepEvent(0);
    program.restart();
    auto& screen = open<EditEventDateAndTimeViewController>(EditScreen::DateAndTime, event);
    screen.nextButton.tap();
    EXPECT_EQ(program.stack().top(), &screen) << "an event without identity is not saved";
}

} // namespace
} // namespace tessivo
