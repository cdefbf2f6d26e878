#include "AddEventVC/ReminderViewController.h"

#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "Interface/AlertController.h"
#include "SelectValueVC/TableViewController.h"
#include "Support/LocalizationVariables.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class ReminderStepTest : public testing::Test {
protected:
    /// Goes to the reminder step of an event that lies ahead, or of one that is past.
    ReminderViewController& open(bool future) {
        openWizard(program).textField.editTo("Summer");
        auto& date = next<EventDateAndTimeViewController>(program);
        if (future)
            date.datePicker.pick(program.timeline.now() + Seconds(10 * 86400));
        return next<ReminderViewController>(program);
    }

    void turnSwitch(ReminderViewController& step) {
        step.toggleSwitch.toggle();
        hear();
    }

    /// Lets the notification center answer and its answers reach the screen.
    void hear() {
        program.notifications.run();
        program.timeline.runPosted();
    }

    const EventItem& draftAfterNext() { return *next<EventBackgroundViewController>(program).eventData; }

    Program program;
};

TEST_F(ReminderStepTest, PermissionIsAskedAsTheStepOpens) {
    auto& step = open(true);
    hear();
    EXPECT_TRUE(program.notifications.questionIsOpen());
    EXPECT_EQ(program.notifications.askedOptions(), 7);
    program.notifications.answer(false);
    hear();
    EXPECT_TRUE(program.console.printed("Permission for push notifications denied."));
    EXPECT_FALSE(step.toggleSwitch.isOn());
    EXPECT_EQ(program.remoteNotifications.registrations, 0);
}

TEST_F(ReminderStepTest, WithPermissionTheDeviceRegistersForPushes) {
    open(true);
    hear();
    program.notifications.answer(true);
    hear();
    EXPECT_EQ(program.remoteNotifications.registrations, 1);
    program.remoteNotifications.answer({0x00, 0x0a, 0xff, 0x10});
    EXPECT_TRUE(program.console.printed("Device Token: 000aff10"));
}

TEST_F(ReminderStepTest, NextAtOnceLeavesTheReminderOff) {
    open(true);
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(draft.alertReminder, NO_VALUE);
    EXPECT_EQ(draft.repReminder, NO_VALUE);
    EXPECT_EQ(draft.remMess, "");
}

TEST_F(ReminderStepTest, TheRowsFollowTheKindOfEvent) {
    for (const bool future : {true, false}) {
        auto& step = open(future);
        EXPECT_TRUE(step.CountLabel.isHidden());
        turnSwitch(step); // also while the question is still open
        EXPECT_EQ(step.alertlabel.isHidden(), !future);
        EXPECT_EQ(step.alertInfoLabel.isHidden(), !future);
        EXPECT_EQ(step.repeatLabel.isHidden(), future);
        EXPECT_EQ(step.repeatButton.isHidden(), future);
        EXPECT_FALSE(step.reminderMess.isHidden());
        EXPECT_FALSE(step.toggleSwitch.sublayers().front()->isHidden());
        turnSwitch(step);
        EXPECT_TRUE(step.alertlabel.isHidden());
        EXPECT_TRUE(step.repeatLabel.isHidden());
        EXPECT_TRUE(step.reminderMess.isHidden());
        EXPECT_TRUE(step.toggleSwitch.sublayers().front()->isHidden());
        program.restart();
    }
}

TEST_F(ReminderStepTest, SwitchedOnBothIndicesAreWritten) {
    auto& step = open(true);
    turnSwitch(step);
    step.alertButton.tap();
    EXPECT_EQ(program.top<TableViewController>().sheetPresentation.height, 550);
    program.top<TableViewController>().tableView.tapItem(6);
    program.top<TableViewController>().dismiss();
    EXPECT_EQ(step.alertlabel.text(), "2 hours before");
    step.reminderMess.beginEditing();
    step.reminderMess.editTo("Pack");
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(draft.alertReminder, 6);
    EXPECT_EQ(draft.repReminder, 0);
    EXPECT_EQ(draft.remMess, "Pack");
}

TEST_F(ReminderStepTest, APastEventChoosesHowOftenItReminds) {
    auto& step = open(false);
    turnSwitch(step);
    step.repeatLabel.tap();
    EXPECT_EQ(program.top<TableViewController>().sheetPresentation.height, 350);
    program.top<TableViewController>().tableView.tapItem(4);
    EXPECT_EQ(step.repeatLabel.text(), "Every year");
    EXPECT_EQ(step.alertlabel.text(), "At time of event");
    program.top<TableViewController>().dismiss();
    const EventItem& draft = draftAfterNext();
    EXPECT_EQ(draft.repReminder, 4);
    EXPECT_EQ(draft.alertReminder, 0);
    EXPECT_EQ(draft.remMess, "") << "a reminder needs no message";
}

TEST_F(ReminderStepTest, SwitchedOffTheMessageLeavesTheDraftAndStaysOnTheScreen) {
    auto& step = open(true);
    turnSwitch(step);
    step.reminderMess.beginEditing();
    step.reminderMess.editTo("Pack");
    step.handleTap();
    turnSwitch(step);
    turnSwitch(step);
    EXPECT_EQ(step.reminderMess.text(), "Pack");
    EXPECT_EQ(step.CountLabel.text(), "Reminder Message (4/50)");
    turnSwitch(step);
    EXPECT_EQ(draftAfterNext().remMess, "");
}

TEST_F(ReminderStepTest, FiftyUserPerceivedCharactersFitAndLineFeedsCount) {
    auto& step = open(true);
    step.reminderMess.beginEditing();
    EXPECT_TRUE(step.reminderMess.editTo(std::string(48, 'x') + "\n👍🏽"));
    EXPECT_EQ(step.CountLabel.text(), "Reminder Message (50/50)");
    const std::string kept = step.messageText;
    EXPECT_FALSE(step.reminderMess.editTo(kept + "y"));
    EXPECT_EQ(step.messageText, kept);
    EXPECT_EQ(step.CountLabel.text(), "Reminder Message (50/50)");
    EXPECT_EQ(step.CountLabel.styledText().runs[1].font.size, 15);
}

TEST_F(ReminderStepTest, ThePlaceholderGivesWayAndComesBack) {
    auto& step = open(true);
    EXPECT_EQ(step.reminderMess.text(), "Add Message");
    EXPECT_EQ(step.reminderMess.textColor(), ui::ColorRef::named("disabled"));
    step.reminderMess.beginEditing();
    EXPECT_EQ(step.reminderMess.text(), "");
    EXPECT_EQ(step.reminderMess.textColor(), ui::ColorRef::black());
    step.reminderMess.editTo("x");
    step.reminderMess.editTo("");
    step.reminderMess.endEditing();
    EXPECT_EQ(step.reminderMess.text(), "Add Message");
    EXPECT_EQ(step.messageText, "");
}

TEST_F(ReminderStepTest, AMessageThatReadsAsThePlaceholderIsWipedFromTheViewAlone) {
    auto& step = open(true);
    step.reminderMess.beginEditing();
    step.reminderMess.editTo("Add Message");
    step.reminderMess.endEditing();
    step.reminderMess.beginEditing();
    EXPECT_EQ(step.reminderMess.text(), "");
    EXPECT_EQ(step.messageText, "Add Message");
}

TEST_F(ReminderStepTest, DeniedTheSwitchEndsOffWhicheverWayItWasTurned) {
    auto& step = open(true);
    hear();
    program.notifications.setStatus(AuthorizationStatus::Denied);
    std::size_t pagesOpened = 0;
    program.services().openNotificationSettings = [&] { ++pagesOpened; };
    for (const std::size_t answer : {0U, 1U}) {
        for (const bool on : {false, true}) {
            step.toggleSwitch.setOn(on);
            turnSwitch(step);
            auto& alert = program.top<ui::AlertController>();
            EXPECT_EQ(alert.title(), "Notifications Permission");
            EXPECT_EQ(alert.message(),
                      "In order to send reminders, the app needs to have a permission for that. "
                      "Please go to the Settings and enable it");
            ASSERT_EQ(alert.actions().size(), 2U);
            EXPECT_EQ(alert.actions()[0].title, program.services().localizationVariables().alertNo);
            EXPECT_EQ(alert.actions()[1].title, program.services().localizationVariables().alertYes);
            EXPECT_EQ(alert.actions()[0].style, ui::AlertActionStyle::Destructive);
            EXPECT_EQ(alert.actions()[1].style, ui::AlertActionStyle::Default);
            alert.choose(answer);
            EXPECT_FALSE(step.toggleSwitch.isOn());
            EXPECT_TRUE(step.alertlabel.isHidden());
            EXPECT_EQ(program.stack().top(), &step);
        }
        EXPECT_EQ(pagesOpened, 2 * answer);
    }
}

TEST_F(ReminderStepTest, AnAnswerAfterTheStepHasGoneIsDropped) {
    auto& step = open(true);
    hear();
    program.notifications.setStatus(AuthorizationStatus::Denied);
    step.toggleSwitch.toggle();
    step.prevButton.tap();
    program.settle();
    hear();
    program.settle();
    EXPECT_EQ(program.stack().top()->screenName(), "EventDateAndTimeViewController")
        << "no alert about a switch that is no more";
}

TEST_F(ReminderStepTest, NextRisesOutOfTheKeyboardsWay) {
    const std::pair<double, double> insets[] = {{640, 85}, {810, 85}, {811, 16}, {999, 16}, {1000, 16}};
    for (const auto& [height, inset] : insets) {
        program.screen.resize({390, height}, 1);
        auto& step = open(true);
        step.reminderMess.beginEditing();
        EXPECT_EQ(step.bottomInset(), inset) << height;
        step.reminderMess.endEditing();
        EXPECT_EQ(step.bottomInset(), 16) << height;
        program.restart();
    }
}

TEST_F(ReminderStepTest, EachShowOfTheRowsBindsOnceMoreAndOnlyOneSheetOpens) {
    auto& step = open(true);
    turnSwitch(step);
    turnSwitch(step);
    turnSwitch(step);
    EXPECT_EQ(step.alertlabel.gestureRecognizers().size(), 2U);
    step.alertlabel.tap();
    EXPECT_EQ(program.top<TableViewController>().presentingViewController(), &step);
}

} // namespace
} // namespace tessivo
