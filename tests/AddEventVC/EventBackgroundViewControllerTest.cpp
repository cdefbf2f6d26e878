#include "AddEventVC/EventBackgroundViewController.h"

#include "AddEventVC/BackgrounCell.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/ReminderViewController.h"
#include "Event/CoreDataStack.h"
#include "MainVC/EventCell.h"
#include "MainVC/MainViewController.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class BackgroundStepTest : public testing::Test {
protected:
    /// Goes to the last step of an event ten days ahead.
    EventBackgroundViewController& open(bool remind = false) {
        openWizard(program).textField.editTo("Summer");
        auto& date = next<EventDateAndTimeViewController>(program);
        date.datePicker.pick(program.timeline.now() + Seconds(10 * 86400));
        date.segmentedControl.select(1);
        auto& reminder = next<ReminderViewController>(program);
        if (remind)
            reminder.toggleSwitch.setOn(true);
        return next<EventBackgroundViewController>(program);
    }

    EventRows confirm(EventBackgroundViewController& step) {
        step.nextButton.tap();
        program.settle();
        return program.services().coreDataStack().fetchEvents();
    }

    static std::vector<int> marked(const ui::CollectionView& strip) {
        std::vector<int> items;
        for (const auto& [item, cell] : strip.visibleCells()) {
            if (!static_cast<const BackgrounCell&>(*cell).premium.isHidden())
                items.push_back(item);
        }
        return items;
    }

    Program program;
};

TEST_F(BackgroundStepTest, ConfirmingAtOnceStoresTheDefaultBackground) {
    auto& step = open();
    EXPECT_EQ(marked(step.gradientCollection), std::vector{1});
    EXPECT_TRUE(marked(step.colorCollection).empty());
    const auto rows = confirm(step);
    ASSERT_EQ(rows.size(), 1U);
    const auto& row = *rows.front();
    EXPECT_EQ(row.title(), "Summer");
    EXPECT_EQ(row.dateEvent(), "01 July 2030");
    EXPECT_EQ(row.gradient(), 1);
    EXPECT_EQ(row.color(), NO_VALUE);
    EXPECT_EQ(row.photoPath(), std::nullopt);
    EXPECT_EQ(row.unsplashPath(), std::nullopt);
    EXPECT_TRUE(row.eventType());
    EXPECT_TRUE(row.id().has_value());
}

TEST_F(BackgroundStepTest, DoneThreeTimesStoresOneEvent) {
    auto& step = open();
    step.nextButton.tap();
    step.nextButton.tap();
    EXPECT_EQ(confirm(step).size(), 1U);
}

TEST_F(BackgroundStepTest, ThePreviewShowsTheDraft) {
    auto& step = open();
    EXPECT_EQ(step.eventView.eventInformationLabel.text(), "Summer\n01 July 2030");
    EXPECT_EQ(step.eventView.timeLabel.text(), "In 9\nDays");
}

TEST_F(BackgroundStepTest, ColourAndGradientReplaceEachOther) {
    auto& step = open();
    step.colorCollection.tapItem(4);
    EXPECT_EQ(marked(step.colorCollection), std::vector{4});
    EXPECT_TRUE(marked(step.gradientCollection).empty());
    EXPECT_TRUE(step.eventView.sublayers().front()->isHidden());
    EXPECT_EQ(step.eventView.backgroundColor(), ui::ColorRef::named("color 5"));
    EXPECT_EQ(step.eventData->color, 4);
    EXPECT_EQ(step.eventData->gradient, NO_VALUE);

    step.gradientCollection.tapItem(2);
    EXPECT_TRUE(marked(step.colorCollection).empty());
    const auto& layer = *step.eventView.sublayers().front();
    EXPECT_FALSE(layer.isHidden());
    EXPECT_EQ(layer.startPoint(), (ui::Point{0, 0}));
    EXPECT_EQ(layer.endPoint(), (ui::Point{0, 1}));
    EXPECT_EQ(confirm(step).front()->gradient(), 2);
}

TEST_F(BackgroundStepTest, EachStripHasAnItemForEachRow) {
    auto& step = open();
    EXPECT_EQ(step.colorCollection.numberOfItems(), 30);
    EXPECT_EQ(step.gradientCollection.numberOfItems(), 30);
    step.colorCollection.scrolledTo({30 * 64 - 390, 0});
    step.colorCollection.tapItem(29);
    EXPECT_EQ(confirm(step).front()->color(), 29);
}

TEST_F(BackgroundStepTest, TheListIsJudgedAnewAtConfirm) {
    auto& step = open();
    program.timeline.advance(Seconds(11 * 86400));
    EXPECT_FALSE(confirm(step).front()->eventType());
}

TEST_F(BackgroundStepTest, TheNewEventStandsInItsListAndOutlivesARestart) {
    confirm(open());
    const auto shown = [&] {
        auto& tabs = program.top<CustomTabBarController>();
        tabs.select(1);
        auto& list = dynamic_cast<MainViewController&>(*tabs.selectedViewController());
        EXPECT_EQ(list.numberOfObjectsInSection, 1);
        return dynamic_cast<EventCell&>(*list.collection.cellForItem(0)).eventInformationLabel.text();
    };
    EXPECT_EQ(shown(), "Summer\n01 July 2030");
    EXPECT_EQ(program.stack().screens().size(), 6U) << "the wizard stays under the new lists";
    program.restart();
    EXPECT_EQ(shown(), "Summer\n01 July 2030");
}

TEST_F(BackgroundStepTest, TheReminderIsMadeOnceItIsGranted) {
    program.notifications.willAnswer(true);
    const auto rows = confirm(open(true));
    EXPECT_TRUE(program.notifications.pending().empty()) << "nothing happens before the center answers";
    program.notifications.run();
    ASSERT_EQ(program.notifications.pending().size(), 1U);
    const auto& request = program.notifications.pending().front();
    EXPECT_EQ(request.identifier, rows.front()->id()->uuidString());
    EXPECT_EQ(request.content.title, "Summer");
    EXPECT_EQ(request.trigger.dateComponents, (DateComponents{2030, 7, 1, 0, 0, {}}));
}

} // namespace
} // namespace tessivo
