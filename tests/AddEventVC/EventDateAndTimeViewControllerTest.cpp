#include "AddEventVC/EventDateAndTimeViewController.h"

#include "AddEventVC/ReminderViewController.h"
#include "SelectValueVC/TableViewController.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class DateStepTest : public testing::Test {
protected:
    DateStepTest() : step(open()) {}

    EventDateAndTimeViewController& open() {
        openWizard(program).textField.editTo("Summer");
        return next<EventDateAndTimeViewController>(program);
    }

    /// The moment of a full date text.
    Instant at(const std::string& text) {
        return program.dateFormatters.make("dd MMMM yyyy h:mm a")->date(text).value();
    }

    std::string counter() { return step.eventView.timeLabel.text(); }
    bool repeatRowShows() {
        EXPECT_EQ(step.repeatLapel.isHidden(), step.repeatButton.isHidden());
        EXPECT_EQ(step.repeatLapel.isHidden(), step.repeatInfoLabel.isHidden());
        return !step.repeatLapel.isHidden();
    }
    const EventItem& draftAfterNext() { return *next<ReminderViewController>(program).eventData; }

    Program program; // on 21 June 2030, 10:30:15
    EventDateAndTimeViewController& step;
};

TEST_F(DateStepTest, OpensOnTodayAllDayAndComparesNothing) {
    EXPECT_EQ(step.dayField.text(), "21 June 2030");
    EXPECT_EQ(step.timeField.text(), "10:30 AM");
    EXPECT_TRUE(step.toggleSwitch.isOn());
    EXPECT_FALSE(repeatRowShows());
    EXPECT_TRUE(step.timeField.isHidden());
    EXPECT_TRUE(step.timeLabel.isHidden());
    EXPECT_EQ(counter(), "In a certain\nHours");
    EXPECT_EQ(step.eventView.eventInformationLabel.text(), "Summer\nDate of event");
}

TEST_F(DateStepTest, NextAtOnceGivesAPastAllDayDraftWithTheSampleStillOnTheCard) {
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(counter(), "In a certain\nHours");
    EXPECT_EQ(draft.dateEvent, "21 June 2030");
    EXPECT_EQ(draft.timeEvent, std::nullopt);
    EXPECT_EQ(draft.timeFormat, 0);
    EXPECT_EQ(draft.repEvent, 0);
    EXPECT_EQ(draft.eventType, false);
}

TEST_F(DateStepTest, TheCardCountsToEachPickedDay) {
    struct Case {
        std::string picked;
        int unit;
        std::string counter;
        bool repeats;
    };
    const Case cases[] = {
        {"21 June 2030 11:00 PM", 1, "Since 0\nDays", false},   // today began at midnight
        {"22 June 2030 9:00 AM", 0, "In 13\nHours", true},      // from its midnight
        {"19 June 2030 11:00 AM", 1, "Since 2\nDays", false},   // 58.5 hours
        {"21 July 2030 9:00 AM", 3, "In 0\nMonths", true},      // 29.6 days
        {"22 July 2030 9:00 AM", 3, "In 1\nMonths", true},      // 30.6 days
        {"21 June 2033 9:00 AM", 4, "In 3\nYears", true},       // 1096 days less a morning
        {"21 June 1900 9:00 AM", 2, "Since 6783\nWeeks", false} // 47482.4 days, in winter-less time
    };
    for (const auto& [picked, unit, expected, repeats] : cases) {
        step.segmentedControl.setSelectedIndex(unit);
        step.datePicker.pick(at(picked));
        EXPECT_EQ(counter(), expected) << picked;
        EXPECT_EQ(repeatRowShows(), repeats) << picked;
    }
}

TEST_F(DateStepTest, TheInformationLineShowsTheDayAlone) {
    step.datePicker.pick(at("24 December 2030 6:00 PM"));
    EXPECT_EQ(step.eventView.eventInformationLabel.text(), "Summer\n24 December 2030");
    step.toggleSwitch.toggle();
    step.timePicker.pick(at("24 December 2030 6:00 PM"));
    EXPECT_EQ(step.timeField.text(), "6:00 PM");
    EXPECT_EQ(step.eventView.eventInformationLabel.text(), "Summer\n24 December 2030");
}

TEST_F(DateStepTest, WithATimeTheMinuteDecides) {
    step.toggleSwitch.toggle();
    EXPECT_FALSE(step.timeField.isHidden());
    EXPECT_FALSE(repeatRowShows()) << "10:30 is past at 10:30:15";
    EXPECT_EQ(counter(), "Since 0\nHours");
    step.timePicker.pick(at("21 June 2030 12:01 PM"));
    EXPECT_TRUE(repeatRowShows());
    EXPECT_EQ(counter(), "In 1\nHours");
    step.toggleSwitch.toggle();
    EXPECT_TRUE(step.timeField.isHidden());
    EXPECT_EQ(counter(), "Since 10\nHours");
    step.toggleSwitch.toggle();
    EXPECT_EQ(step.timeField.text(), "12:01 PM") << "a time row comes back with the text it had";
    EXPECT_EQ(draftAfterNext().timeEvent, "12:01 PM");
}

TEST_F(DateStepTest, AllDayDropsTheChosenTime) {
    step.toggleSwitch.toggle();
    step.timePicker.pick(at("21 June 2030 12:01 PM"));
    step.toggleSwitch.toggle();
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(draft.timeEvent, std::nullopt);
    EXPECT_EQ(draft.eventType, false);
}

TEST_F(DateStepTest, TheUnitCountsAnewAndLeavesTheRepeatRow) {
    step.segmentedControl.select(1);
    EXPECT_EQ(counter(), "Since 0\nDays");
    step.datePicker.pick(at("01 July 2030 9:00 AM"));
    step.segmentedControl.select(2);
    EXPECT_EQ(counter(), "In 1\nWeeks");
    EXPECT_TRUE(repeatRowShows());
    EXPECT_EQ(draftAfterNext().timeFormat, 2);
}

TEST_F(DateStepTest, PickersOpenUnderTheirRowsAndATapBesideClosesThem) {
    step.dayField.tap();
    EXPECT_FALSE(step.datePicker.isHidden());
    step.toggleSwitch.toggle();
    step.timeField.tap();
    EXPECT_FALSE(step.timePicker.isHidden());
    EXPECT_FALSE(step.datePicker.isHidden()) << "the one does not close the other";
    const std::string before = counter();
    program.timeline.advance(Seconds(7200));
    step.contentView.tap();
    EXPECT_TRUE(step.datePicker.isHidden());
    EXPECT_TRUE(step.timePicker.isHidden());
    EXPECT_EQ(counter(), before) << "closing tests the date and counts nothing";
    step.timeField.tap();
    step.toggleSwitch.toggle();
    EXPECT_TRUE(step.timePicker.isHidden()) << "all day needs no time";
}

TEST_F(DateStepTest, OpeningTheTimeTestsTheDate) {
    step.toggleSwitch.toggle();
    step.timePicker.pick(at("21 June 2030 10:32 AM"));
    EXPECT_TRUE(repeatRowShows());
    program.timeline.advance(Seconds(300));
    step.dayField.tap();
    EXPECT_TRUE(repeatRowShows()) << "opening the day tests nothing";
    step.timeField.tap();
    EXPECT_FALSE(repeatRowShows());
}

TEST_F(DateStepTest, ARepeatIsChosenInASheetAndOutlivesItsRow) {
    step.datePicker.pick(at("01 July 2030 9:00 AM"));
    step.repeatLapel.tap();
    auto& picker = program.top<TableViewController>();
    EXPECT_EQ(picker.sheetPresentation.height, 400);
    EXPECT_EQ(picker.selectedItem, 0);
    picker.tableView.tapItem(3);
    EXPECT_EQ(step.repeatLapel.text(), "Every 2 weeks");
    picker.dismiss();
    step.repeatButton.tap();
    EXPECT_EQ(program.top<TableViewController>().selectedItem, 3);
    program.top<TableViewController>().dismiss();
    step.datePicker.pick(at("01 June 2030 9:00 AM"));
    EXPECT_FALSE(repeatRowShows());
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(draft.repEvent, 3);
    EXPECT_EQ(draft.eventType, false);
}

TEST_F(DateStepTest, TheWheelsTurnDayMonthAndYear) {
    step.datePicker.pick(at("31 January 2031 9:00 AM"));
    EXPECT_EQ(step.datePicker.wheel(0).rows.size(), 31U);
    EXPECT_EQ(step.datePicker.wheel(1).rows[1], "February");
    step.datePicker.turn(1, 1);
    EXPECT_EQ(step.dayField.text(), "28 February 2031") << "the day is cut to the month";
    EXPECT_EQ(step.datePicker.wheel(0).rows.size(), 28U);
    const auto years = step.datePicker.wheel(2);
    step.datePicker.turn(2, years.selected + 1);
    EXPECT_EQ(step.dayField.text(), "28 February 2032");
    step.datePicker.turn(0, 28);
    EXPECT_EQ(step.dayField.text(), "29 February 2032");
    step.datePicker.turn(0, 99);
    step.datePicker.turn(7, 0);
    EXPECT_EQ(step.dayField.text(), "29 February 2032");
}

TEST_F(DateStepTest, TheWheelsTurnHourMinuteAndHalfOfTheDay) {
    step.toggleSwitch.toggle();
    EXPECT_EQ(step.timePicker.wheel(0).rows[0], "12");
    EXPECT_EQ(step.timePicker.wheel(2).rows, (std::vector<std::string>{"AM", "PM"}));
    step.timePicker.turn(2, 1);
    EXPECT_EQ(step.timeField.text(), "10:30 PM");
    step.timePicker.turn(0, 0);
    EXPECT_EQ(step.timeField.text(), "12:30 PM");
    step.timePicker.turn(1, 5);
    EXPECT_EQ(step.timeField.text(), "12:05 PM");
    step.timePicker.turn(2, 0);
    EXPECT_EQ(step.timeField.text(), "12:05 AM");
}

} // namespace
} // namespace tessivo
