#include "MainVC/FullEventViewController.h"

#include "AddEventVC/EditEventBackgroundViewController.h"
#include "EditEventVC/EditEventTitleViewController.h"
#include "Interface/AlertController.h"
#include "Support/Sharing/ActivityViewController.h"
#include "support/EditTest.h"

namespace tessivo {
namespace {

using testing::ElementsAre;

class FullEventTest : public EditTest {
protected:
    FullEventViewController& openOn(std::shared_ptr<EventCoreData> event) {
        program.stack().top()->present(program.services().screens().makeFullEvent(std::move(event)), false);
        return program.top<FullEventViewController>();
    }
    FullEventViewController& openOn(const EventItem& item) {
        store(item);
        return openOn(row());
    }

    /// Chooses an entry of the menu by its titles.
    static void choose(FullEventViewController& screen, const std::string& title) {
        for (const auto& element : screen.fillterButton.menu().elements) {
            if (element.title == title)
                return element.handler();
            for (const auto& child : element.children) {
                if (child.title == title)
                    return child.handler();
            }
        }
        FAIL() << "no entry " << title;
    }
};

TEST_F(FullEventTest, ShowsTheEventInLargeType) {
    auto& screen = openOn(summer());
    EXPECT_EQ(screen.eventInformationLabel.text(), "Summer\n25 June 2030");
    EXPECT_EQ(screen.timeLabel.text(), "In 4\nDays");
    std::vector<double> sizes;
    for (const auto* label : {&screen.eventInformationLabel, &screen.timeLabel}) {
        for (const auto& run : label->styledText().runs) {
            sizes.push_back(run.font.size);
            EXPECT_EQ(run.color, ui::ColorRef::white());
        }
    }
    EXPECT_THAT(sizes, ElementsAre(28, 20, 42, 26));
    program.timeline.advance(Seconds(2 * 86400));
    EXPECT_EQ(screen.timeLabel.text(), "In 4\nDays") << "the counter stands while the screen stands";
}

TEST_F(FullEventTest, TheMenuOffersShareEditAndDelete) {
    std::vector<std::string> titles;
    for (const auto& element : openOn(summer()).fillterButton.menu().elements) {
        titles.push_back(element.title + " " + element.symbol);
        for (const auto& child : element.children)
            titles.push_back("- " + child.title + " " + child.symbol);
    }
    EXPECT_THAT(titles, ElementsAre("Share square.and.arrow.up", "Edit pencil", "- Edit Title textformat",
                                    "- Edit Day & Time calendar", "- Edit Reminder bell.badge",
                                    "- Edit Background photo", "Delete trash"));
}

TEST_F(FullEventTest, EachEditGetsTheEventThatIsShownAndSlidesInOverIt) {
    auto& screen = openOn(summer());
    const std::pair<const char*, const char*> rows[] = {
        {"Edit Title", "EditEventTitleViewController"},
        {"Edit Day & Time", "EditEventDateAndTimeViewController"},
        {"Edit Reminder", "EditReminderViewController"},
        {"Edit Background", "EditEventBackgroundViewController"}};
    for (const auto& [title, name] : rows) {
        choose(screen, title);
        EXPECT_EQ(program.stack().top()->screenName(), name);
        EXPECT_EQ(program.stack().top()->transitioningDelegate.lock().get(), &screen);
        program.settle();
        program.top<WizardScreen>().prevButton.tap();
        program.settle();
        ASSERT_EQ(program.stack().top(), &screen);
    }
    choose(screen, "Edit Title");
    EXPECT_EQ(program.top<EditEventTitleViewController>().eventData, screen.record);
}

TEST_F(FullEventTest, AnAbandonedEditShowsHereWithOneMoreLayerAndNotInTheStore) {
    EventItem item = summer();
    item.color = NO_VALUE;
    item.gradient = 3;
    auto& screen = openOn(item);
    ASSERT_EQ(screen.view().sublayers().size(), 1U);
    EXPECT_EQ(screen.view().sublayers().front()->frame(), (ui::Rect{0, 0, 390, 844}));
    const auto earlier = screen.view().sublayers().front();
    choose(screen, "Edit Background");
    program.settle();
    auto& edit = program.top<EditEventBackgroundViewController>();
    edit.gradientCollection.tapItem(8);
    screen.record->setTitle("Abandoned");
    program.timeline.advance(Seconds(3 * 86400));
    edit.prevButton.tap();
    program.settle();
    EXPECT_EQ(screen.view().sublayers().size(), 2U);
    EXPECT_EQ(screen.view().sublayers().back(), earlier) << "the new layer lies under the earlier one";
    EXPECT_EQ(screen.eventInformationLabel.text(), "Abandoned\n25 June 2030");
    EXPECT_EQ(screen.timeLabel.text(), "In 4\nDays");
    EXPECT_EQ(row()->title(), "Summer");
}

TEST_F(FullEventTest, PicturesAreFittedByTheirKindAndMissingOnesAreLogged) {
    store(summer());
    const auto event = row();
    event->setColor(NO_VALUE);
    event->setPhotoPath("file:///gone.jpg");
    auto& photo = openOn(event);
    EXPECT_EQ(photo.eventImage.contentMode(), ui::ContentMode::AspectFill);
    photo.dismiss(false);
    event->setPhotoPath(std::nullopt);
    event->setUnsplashPath("https://images.example/gone");
    auto& kept = openOn(event);
    EXPECT_EQ(kept.eventImage.contentMode(), ui::ContentMode::ScaleToFill);
    EXPECT_TRUE(program.console.printed("Не удалось загрузить изображение."));
}

TEST_F(FullEventTest, TheSharedPictureHasNoButtonsAndTheyReturnWhenItWasTaken) {
    auto& screen = openOn(summer());
    choose(screen, "Share");
    EXPECT_THAT(program.snapshots.asked, ElementsAre(&screen.view()));
    EXPECT_TRUE(screen.prevButton.isHidden());
    EXPECT_TRUE(screen.fillterButton.isHidden());
    program.timeline.runPosted();
    EXPECT_FALSE(screen.prevButton.isHidden());
    EXPECT_FALSE(screen.fillterButton.isHidden());
    program.top<ActivityViewController>().copyButton.tap();
    ASSERT_EQ(program.pictureSharing.shared.size(), 1U);
    EXPECT_EQ(program.pictureSharing.shared.front().picture, program.snapshots.picture);
}

TEST_F(FullEventTest, WhereNothingIsDrawnTheButtonsReturnAndNothingIsShared) {
    program.snapshots.picture = nullptr;
    auto& screen = openOn(summer());
    choose(screen, "Share");
    program.timeline.runPosted();
    EXPECT_FALSE(screen.prevButton.isHidden());
    EXPECT_EQ(program.stack().top(), &screen);
}

TEST_F(FullEventTest, DeletingAsksAndThenShowsTheListsOverTheScreen) {
    remind(summer());
    auto& screen = openOn(summer());
    choose(screen, "Delete");
    program.top<ui::AlertController>().choose(0);
    EXPECT_EQ(program.services().coreDataStack().fetchEvents().size(), 1U) << "the red answer keeps it";
    choose(screen, "Delete");
    program.top<ui::AlertController>().choose(1);
    EXPECT_TRUE(program.services().coreDataStack().fetchEvents().empty());
    center.run();
    EXPECT_TRUE(center.pending().empty());
    EXPECT_TRUE(program.console.printed("Уведомление с идентификатором " + identifier + " удалено"));
    program.settle();
    EXPECT_EQ(program.stack().top()->screenName(), "CustomTabBarController");
    EXPECT_EQ(program.stack().top()->presentingViewController(), &screen) << "it stays below";
}

TEST_F(FullEventTest, AnEventThatBreaksTheRecordStopsTheProgram) {
    const std::pair<const char*, void (*)(EventCoreData&)> cases[] = {
        {"no title", [](EventCoreData& event) { event.setTitle(std::nullopt); }},
        {"no date", [](EventCoreData& event) { event.setDateEvent(std::nullopt); }},
        {"a date in another language", [](EventCoreData& event) { event.setDateEvent("25 Juni 2030"); }},
        {"no background", [](EventCoreData& event) { event.setColor(NO_VALUE); }},
    };
    store(summer());
    for (const auto& [what, spoil] : cases) {
        const auto event = row();
        spoil(*event);
        EXPECT_THROW(openOn(event), fakes::ProgramStopped) << what;
        program.restart();
    }
}

} // namespace
} // namespace tessivo
