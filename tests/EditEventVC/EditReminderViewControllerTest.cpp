#include "EditEventVC/EditReminderViewController.h"

#include "Interface/AlertController.h"
#include "SelectValueVC/TableViewController.h"
#include "support/EditTest.h"

namespace tessivo {
namespace {

using testing::ElementsAre;

class EditReminderTest : public EditTest {
protected:
    EditReminderViewController& openOn(const EventItem& item) {
        store(item);
        return open<EditReminderViewController>(EditScreen::Reminder, row());
    }

    void turnSwitch(EditReminderViewController& screen) {
        screen.toggleSwitch.toggle();
        center.run();
        program.timeline.runPosted();
    }
};

TEST_F(EditReminderTest, OpensOnTheStoredReminderAndAsksForNothing) {
    struct Case {
        std::int16_t alert;
        std::int16_t repeat;
        const char* message;
        bool future;
        const char* shown; ///< in the row of its kind
        const char* messageShown;
        const char* count;
    };
    const Case cases[] = {
        {3, 0, "Pack", true, "15 minutes before", "Pack", "Reminder Message (4/50)"},
        {0, 2, "", false, "Every 2 weeks", "Add Message", "Reminder Message (0/50)"},
        {NO_VALUE, NO_VALUE, "", true, nullptr, "Add Message", "Reminder Message (0/50)"},
    };
    store(summer());
    for (const auto& [alert, repeat, message, future, shown, messageShown, count] : cases) {
        SCOPED_TRACE(alert);
        const auto event = row();
        event->setAlertReminder(alert);
        event->setRepReminder(repeat);
        event->setRemMess(message);
        event->setEventType(future);
        auto& screen = open<EditReminderViewController>(EditScreen::Reminder, event);
        EXPECT_EQ(screen.toggleSwitch.isOn(), shown != nullptr);
        EXPECT_EQ(screen.alertlabel.isHidden(), !(shown && future));
        EXPECT_EQ(screen.repeatLabel.isHidden(), !(shown && !future));
        EXPECT_EQ(screen.reminderMess.isHidden(), shown == nullptr);
        if (shown) {
            EXPECT_EQ(future ? screen.alertlabel.text() : screen.repeatLabel.text(), shown);
        }
        EXPECT_EQ(screen.reminderMess.text(), messageShown);
        EXPECT_EQ(screen.reminderMess.textColor(),
                  *message ? ui::ColorRef::black() : ui::ColorRef::named("disabled"));
        EXPECT_EQ(screen.messageText, message);
        EXPECT_EQ(screen.CountLabel.text(), count);
        screen.dismiss(false);
    }
    center.run();
    EXPECT_EQ(center.timesAsked(), 0);
}

TEST_F(EditReminderTest, SaveStoresPassesAndRemindsAnew) {
    const std::string made = "> уведомление создано";
    struct Case {
        const char* what;
        bool on;
        bool pending;
        std::vector<std::string> trace;
    };
    const Case cases[] = {
        {"on, with a notification",
         true,
         true,
         {"save Summer, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 5 0 Pack, 4 9999", "pass", "look up",
          "-- CustomTabBarController", "remove", "add Summer/Pack 25.6. 17:30 repeats", made}},
        {"on, without one",
         true,
         false,
         {"save Summer, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 5 0 Pack, 4 9999", "pass", "look up",
          "-- CustomTabBarController", "add Summer/Pack 25.6. 17:30 repeats", made}},
        {"off: what is pending stays",
         false,
         true,
         {"save Summer, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 9999 9999 , 4 9999", "pass",
          "-- CustomTabBarController"}},
    };
    for (const auto& [what, on, pending, expected] : cases) {
        SCOPED_TRACE(what);
        if (pending)
            remind(summer());
        auto& screen = openOn(summer());
        screen.alertButton.tap();
        program.top<TableViewController>().tableView.tapItem(5);
        program.top<TableViewController>().dismiss();
        if (!on)
            turnSwitch(screen);
        EXPECT_EQ(save(screen), expected);
        EXPECT_EQ(center.pending().size(), 1U);
        center.fire(identifier);
        program.settle();
        for (const auto& left : program.services().coreDataStack().fetchEvents())
            program.services().coreDataStack().deleteEvent(*left->id());
    }
}

TEST_F(EditReminderTest, APastEventIsRemindedByThePassAndTheScreenAndOnceOnly) {
    EventItem item = summer();
    item.eventType = false;
    item.dateEvent = "18 June 2030";
    const auto happened = save(openOn(item));
    EXPECT_THAT(happened, testing::Contains("> уведомление ПЕРЕсоздаНО"));
    EXPECT_THAT(happened, testing::Contains("> уведомление создано"));
    ASSERT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(center.pending().front().trigger.dateComponents.hour, 18);
}

TEST_F(EditReminderTest, OpenedOnAndDeniedTheRowsStayAndSaveWritesOff) {
    auto& screen = openOn(summer());
    center.setStatus(AuthorizationStatus::Denied);
    turnSwitch(screen);
    EXPECT_EQ(program.top<ui::AlertController>().title(), "Notifications Permission");
    program.top<ui::AlertController>().choose(0);
    EXPECT_FALSE(screen.toggleSwitch.isOn());
    EXPECT_FALSE(screen.alertlabel.isHidden());
    save(screen);
    EXPECT_EQ(row()->alertReminder(), NO_VALUE);
    EXPECT_EQ(row()->repReminder(), NO_VALUE);
    EXPECT_EQ(row()->remMess(), "");
}

TEST_F(EditReminderTest, WithoutAnIdNothingIsShownAndAStrangeNumberStopsTheProgram) {
    EventRecord record;
    record.title = "Summer";
    record.dateEvent = "25 June 2030";
    record.alertReminder = record.repReminder = NO_VALUE;
    const auto event = std::make_shared<EventCoreData>(record);
    auto& screen = open<EditReminderViewController>(EditScreen::Reminder, event);
    screen.nextButton.tap();
    EXPECT_EQ(program.stack().top(), &screen);
    event->setAlertReminder(10);
    program.restart();
    EXPECT_THROW(open<EditReminderViewController>(EditScreen::Reminder, event), fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo
