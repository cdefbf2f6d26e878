#include "MainVC/MainViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "Interface/AlertController.h"
#include "MainVC/EventCell.h"
#include "Ports/SavedSettings.h"
#include "Support/LocalizationVariables.h"
#include "Support/SettingKeys.h"
#include "Support/Sharing/ActivityViewController.h"
#include "support/Events.h"
#include "support/Program.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tessivo {
namespace {

using testing::ElementsAre;

class ListTest : public testing::Test {
protected:
    EventItem event(const std::string& title, const std::string& day, std::optional<std::string> time = {}) {
        EventItem item = plainEvent(title, day, program.services().platform().uuids.random());
        item.timeEvent = std::move(time);
        return item;
    }

    void store(const EventItem& item) { program.services().coreDataStack().addEvent(item); }

    MainViewController& list(ListType type) {
        auto& tabs = program.top<CustomTabBarController>();
        tabs.select(type == ListType::Past ? 0 : 1);
        auto& shown = dynamic_cast<MainViewController&>(*tabs.selectedViewController());
        shown.collection.reloadData();
        return shown;
    }

    static EventCell& card(MainViewController& list, int item) {
        return dynamic_cast<EventCell&>(*list.collection.cellForItem(item));
    }

    Program program;
};

TEST_F(ListTest, EachListShowsItsOwnEventsInTheOrderOfMaking) {
    store(event("b", "25 June 2030"));
    auto past = event("gone", "01 June 2030");
    past.eventType = false;
    store(past);
    store(event("a", "24 June 2030"));
    auto& future = list(ListType::Future);
    EXPECT_EQ(future.numberOfObjectsInSection, 2);
    EXPECT_EQ(card(future, 0).eventInformationLabel.text(), "b\n25 June 2030");
    EXPECT_EQ(card(future, 1).eventInformationLabel.text(), "a\n24 June 2030");
    auto& gone = list(ListType::Past);
    EXPECT_EQ(gone.numberOfObjectsInSection, 1);
    EXPECT_EQ(card(gone, 0).timeLabel.text(), "Since 490\nHours");
}

TEST_F(ListTest, TheFirstEventHidesTheEmptyText) {
    auto& future = list(ListType::Future);
    EXPECT_FALSE(future.mainlabel.isHidden());
    EXPECT_EQ(future.hintLabel.text(), "What lies ahead is counted down here.");
    EXPECT_EQ(list(ListType::Past).hintLabel.text(), "What is over is kept here.");
    store(event("first", "25 June 2030"));
    future.collection.reloadData();
    EXPECT_TRUE(future.mainlabel.isHidden());
    EXPECT_TRUE(future.hintLabel.isHidden());
    auto& past = list(ListType::Past);
    EXPECT_FALSE(past.hintLabel.isHidden());
    EXPECT_EQ(past.hintLabel.text(), "All your events are under Future.");
}

TEST_F(ListTest, CardsFollowTheChosenSize) {
    store(event("sized", "25 June 2030"));
    const std::tuple<long, double> cases[] = {{0, 844 / 4.6136}, {1, 844 / 4.06}, {2, 844 / 3.5}};
    auto& future = list(ListType::Future);
    for (const auto& [choice, height] : cases) {
        program.services().platform().settings.setInteger(settingKeys::eventSize, choice);
        future.collection.reloadData();
        const auto frame = card(future, 0).frame();
        EXPECT_NEAR(frame.width, 390 / 1.1, 1e-9);
        EXPECT_NEAR(frame.height, height, 1e-9);
        EXPECT_NEAR(frame.midX(), 195, 1e-9);
        EXPECT_NEAR(frame.y, 10, 1e-9);
    }
    program.services().platform().settings.setInteger(settingKeys::eventSize, 3);
    future.collection.reloadData();
    EXPECT_TRUE(future.collection.visibleCells().empty());
}

TEST_F(ListTest, TheTickComesAtTheWholeMinuteAndThenEachMinute) {
    store(event("at 10:31", "21 June 2030", "10:31 AM"));
    auto& future = list(ListType::Future);
    EXPECT_EQ(future.numberOfObjectsInSection, 1);
    program.timeline.advance(Seconds(44.9)); // 10:30:59.9
    EXPECT_EQ(future.numberOfObjectsInSection, 1);
    program.timeline.advance(Seconds(0.2)); // the event is past from the instant after its own
    store(event("at 10:32", "21 June 2030", "10:32 AM"));
    future.collection.reloadData();
    program.timeline.advance(Seconds(60));
    EXPECT_EQ(future.numberOfObjectsInSection, 1) << "10:31 has gone to Past, 10:32 is still ahead";
    program.timeline.advance(Seconds(60));
    EXPECT_EQ(future.numberOfObjectsInSection, 0);
    EXPECT_EQ(list(ListType::Past).numberOfObjectsInSection, 2);
}

// A daily event of long ago moves on by a day with each tick, so it counts the ticks.
TEST_F(ListTest, EachAppearanceStartsATickMoreAndNoneStops) {
    auto daily = event("daily", "01 January 2020");
    daily.repEvent = 1;
    store(daily);
    const auto ticksOfTheNextMinute = [&] {
        program.timeline.advance(Seconds(0.1));
        const auto passes = [&] {
            const auto text = program.services().coreDataStack().fetchEvents().front()->dateEvent();
            return program.dateFormatters.make("dd MMMM yyyy")->date(*text).value();
        };
        const auto before = passes();
        program.timeline.advance(Seconds(60));
        return std::lround((passes() - before) / Seconds(86400));
    };
    const auto few = ticksOfTheNextMinute();
    list(ListType::Future);
    list(ListType::Past);
    EXPECT_EQ(ticksOfTheNextMinute(), few + 2);
    EXPECT_EQ(ticksOfTheNextMinute(), few + 2);
}

TEST_F(ListTest, ACoveredListGoesOnTicking) {
    store(event("soon", "21 June 2030", "10:31 AM"));
    list(ListType::Future);
    program.top<CustomTabBarController>().addButton.tap();
    program.timeline.advance(Seconds(120));
    EXPECT_FALSE(program.services().coreDataStack().fetchEvents().front()->eventType());
}

TEST_F(ListTest, NumbersStandStillWhileTheListStandsAndMoveWithANewOne) {
    store(event("in two hours", "21 June 2030", "12:45 PM"));
    auto& future = list(ListType::Future);
    EXPECT_EQ(card(future, 0).timeLabel.text(), "In 2\nHours");
    auto* cell = &card(future, 0);
    program.timeline.advance(Seconds(3600));
    EXPECT_EQ(&card(future, 0), cell);
    EXPECT_EQ(card(future, 0).timeLabel.text(), "In 2\nHours");
    program.restart();
    EXPECT_EQ(card(list(ListType::Future), 0).timeLabel.text(), "In 1\nHours");
}

TEST_F(ListTest, AReusedCardShowsNothingOfItsFormerEvent) {
    auto faded = event("faded", "25 June 2030");
    faded.color = NO_VALUE;
    faded.gradient = 4;
    store(faded);
    auto& future = list(ListType::Future);
    auto& cell = card(future, 0);
    ASSERT_EQ(cell.contentView.sublayers().size(), 1U);
    EXPECT_NEAR(cell.contentView.sublayers()[0]->frame().height, 844 / 4.06, 1e-9);

    auto& store = program.services().coreDataStack();
    store.updateBackground(*faded.id, 6, NO_VALUE, {}, {});
    future.collection.reloadData();
    EXPECT_EQ(&card(future, 0), &cell);
    EXPECT_TRUE(cell.contentView.sublayers().empty());
    EXPECT_EQ(cell.contentView.backgroundColor(), ui::ColorRef::named("color 7"));
}

TEST_F(ListTest, AUnitThatDoesNotExistLeavesTheOldNumber) {
    auto odd = event("odd", "25 June 2030");
    store(odd);
    auto& future = list(ListType::Future);
    const std::string before = card(future, 0).timeLabel.text();
    program.services().coreDataStack().updateDateAndTime(*odd.id, odd.dateEvent, {}, 5, 0, true);
    ASSERT_FALSE(program.console.printed("nul"));
    future.collection.reloadData();
    EXPECT_EQ(card(future, 0).timeLabel.text(), before);
    EXPECT_TRUE(program.console.printed("nul"));
}

TEST_F(ListTest, RowsThatBreakTheRecordStopTheProgram) {
    const std::pair<const char*, void (*)(EventRecord&)> cases[] = {
        {"no background", [](EventRecord& event) { event.color = NO_VALUE; }},
        {"a colour beyond the table", [](EventRecord& event) { event.color = 30; }},
        {"a gradient below the table",
         [](EventRecord& event) { event.color = NO_VALUE, event.gradient = std::int16_t{-1}; }},
        {"no title", [](EventRecord& event) { event.title.reset(); }},
        {"no date", [](EventRecord& event) { event.dateEvent.reset(); }},
        {"a date in another language", [](EventRecord& event) { event.dateEvent = "25 Juni 2030"; }},
        {"a time that is none", [](EventRecord& event) { event.timeEvent = "25:00"; }},
        {"no identity", [](EventRecord& event) { event.id.reset(); }},
    };
    for (const auto& [what, spoil] : cases) {
        EventRecord record = fullRecord();
        record.gradient = NO_VALUE;
        record.photoPath = record.unsplashPath = std::nullopt;
        spoil(record);
        EventCell cell(program.services());
        EXPECT_THROW(cell.configure(EventCoreData(record)), fakes::ProgramStopped) << what;
    }
}

TEST_F(ListTest, AnEmptyTimeIsNoTime) {
    auto finished = event("finished", "20 June 2030", "");
    finished.eventType = false;
    store(finished);
    EXPECT_EQ(card(list(ListType::Past), 0).timeLabel.text(), "Since 34\nHours");
}

TEST_F(ListTest, LargeScreensGetLargerType) {
    store(event("large", "25 June 2030"));
    auto& future = list(ListType::Future);
    program.screen.resize({834, 1194},
                          2); // as when the window reports its size after the first list is laid out
    EXPECT_EQ(future.mainlabel.font().size, 25);
    EXPECT_NEAR(card(future, 0).frame().width, 834 / 1.1, 1e-9);
    const auto& runs = card(future, 0).eventInformationLabel.styledText().runs;
    EXPECT_EQ(runs[0].font, (ui::Font{30, ui::FontWeight::Semibold}));
    EXPECT_EQ(runs[1].font, (ui::Font{24, ui::FontWeight::Regular}));
}

TEST_F(ListTest, ALongPressOffersWhatCanBeDoneInItsOrder) {
    store(event("pressed", "25 June 2030"));
    auto& future = list(ListType::Future);
    const auto menu = future.contextMenuForItem(future.collection, 0, {});
    ASSERT_TRUE(menu);
    std::vector<std::string> titles;
    for (const auto& element : menu->elements) {
        titles.push_back(element.title + " " + element.symbol);
        for (const auto& child : element.children)
            titles.push_back("- " + child.title + " " + child.symbol);
    }
    EXPECT_THAT(titles, ElementsAre("Edit pencil", "- Edit Title textformat", "- Edit Day & Time calendar",
                                    "- Edit Reminder bell.badge", "- Edit Background photo",
                                    "Share square.and.arrow.up", "Delete trash"));
    menu->elements[2].handler();
    EXPECT_EQ(program.top<ui::AlertController>().title(),
              "Are You Sure You Want\u2028 to Delete This Event?");
}

TEST_F(ListTest, TheEditSheetOffersFourScreensAndCancel) {
    store(event("edited", "25 June 2030"));
    list(ListType::Future).showEditSheet(0);
    auto& sheet = program.top<ui::AlertController>();
    EXPECT_EQ(sheet.style(), ui::AlertStyle::ActionSheet);
    EXPECT_EQ(sheet.title(), "Edit");
    EXPECT_EQ(sheet.message(), "What do you want to edit?");
    std::vector<std::string> titles;
    for (const auto& action : sheet.actions())
        titles.push_back(action.title);
    EXPECT_THAT(titles,
                ElementsAre("Edit Title", "Edit Day & Time", "Edit Reminder", "Edit Background", "Cancel"));
    sheet.cancel();
    EXPECT_EQ(program.stack().screens().size(), 1U);
}

TEST_F(ListTest, DeletingAsksFirstAndTheRedAnswerKeepsTheEvent) {
    store(event("kept", "25 June 2030"));
    auto& future = list(ListType::Future);
    future.confirmDeletion(0);
    auto& question = program.top<ui::AlertController>();
    ASSERT_EQ(question.actions().size(), 2U);
    EXPECT_EQ(question.actions()[0].style, ui::AlertActionStyle::Destructive);
    EXPECT_EQ(question.actions()[0].title, program.services().localizationVariables().alertNo);
    EXPECT_EQ(question.actions()[1].style, ui::AlertActionStyle::Default);
    EXPECT_EQ(question.actions()[1].title, program.services().localizationVariables().alertYes);
    EXPECT_EQ(question.style(), ui::AlertStyle::ActionSheet);
    EXPECT_EQ(question.message(), "");
    question.choose(0);
    program.timeline.runPosted();
    EXPECT_EQ(future.collection.numberOfItems(), 1);
}

TEST_F(ListTest, DeletingTakesTheRowItsNotificationAndItsCard) {
    const auto doomed = event("doomed", "25 June 2030");
    store(doomed);
    const auto lone = event("stays", "26 June 2030");
    store(lone);
    program.notifications.setStatus(AuthorizationStatus::Authorized);
    const std::string identifier = doomed.id->uuidString();
    program.notifications.add({identifier, {}, {}}, [](Outcome) {});
    program.notifications.run();
    auto& future = list(ListType::Future);
    future.confirmDeletion(0);
    program.top<ui::AlertController>().choose(1);
    EXPECT_EQ(program.services().coreDataStack().fetchEvents().size(), 1U) << "the row does not wait";
    EXPECT_EQ(future.numberOfObjectsInSection, 1);
    EXPECT_EQ(future.collection.numberOfItems(), 2) << "the cards follow in a later turn";
    program.notifications.run();
    EXPECT_TRUE(program.notifications.pending().empty());
    EXPECT_TRUE(program.console.printed("Уведомление с идентификатором " + identifier + " удалено"));
    program.timeline.runPosted();
    EXPECT_EQ(card(future, 0).eventInformationLabel.text(), "stays\n26 June 2030");

    future.deleteAction(0);
    program.notifications.run();
    program.timeline.runPosted();
    EXPECT_FALSE(future.mainlabel.isHidden());
    EXPECT_TRUE(
        program.console.printed("Уведомление с идентификатором " + lone.id->uuidString() + " не найдено"));
    EXPECT_THROW(future.deleteAction(0), fakes::ProgramStopped);
    EXPECT_THROW(future.deleteAction(-1), fakes::ProgramStopped);
    future.records.reset();
    EXPECT_THROW(future.deleteAction(0), fakes::ProgramStopped);
}

TEST_F(ListTest, SharingACardTakesItsPictureAndOpensTheSheet) {
    store(event("shared", "25 June 2030"));
    auto& future = list(ListType::Future);
    future.shareCard(0);
    ASSERT_EQ(program.snapshots.asked.size(), 1U);
    EXPECT_EQ(program.snapshots.asked.front(), &card(future, 0));
    program.timeline.runPosted();
    program.top<ActivityViewController>().copyButton.tap();
    ASSERT_EQ(program.pictureSharing.shared.size(), 1U);
    EXPECT_EQ(program.pictureSharing.shared.front().picture, program.snapshots.picture);
}

TEST_F(ListTest, ACardThatIsNotOnTheScreenHasNoPictureToShare) {
    for (int number = 0; number < 20; ++number)
        store(event("event", "25 June 2030"));
    auto& future = list(ListType::Future);
    future.shareCard(19);
    future.shareCard(20);
    EXPECT_TRUE(program.snapshots.asked.empty());
    future.contextMenuForItem(future.collection, 0, {})->elements[1].handler();
    EXPECT_EQ(program.snapshots.asked.size(), 1U);
}

TEST_F(ListTest, TheSwipeOffersDeleteShareAndEditInTheChosenSize) {
    store(event("swiped", "25 June 2030"));
    const struct {
        long size;
        std::optional<double> width;
        std::vector<std::string> images;
    } rows[] = {{0, 52, {"DeleteSmall", "shareSmall", "editSmall"}},
                {1, 60, {"DeleteLarge", "shareLarge", "editLarge"}},
                {2, 68, {"DeleteBig", "shareBig", "editBig"}},
                {3, {}, {"", "", ""}}};
    auto& future = list(ListType::Future);
    using Side = swipe::SwipeActionsOrientation;
    EXPECT_EQ(future.editActions(future.collection, 0, Side::Left), std::nullopt);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        program.services().platform().settings.setInteger(settingKeys::eventSize, row.size);
        const auto options = future.editActionsOptions(future.collection, 0, Side::Right);
        EXPECT_EQ(options.maximumButtonWidth, row.width);
        EXPECT_EQ(options.minimumButtonWidth, std::nullopt);
        EXPECT_FALSE(options.expansionStyle);
        EXPECT_EQ(options.transitionStyle, swipe::SwipeTransitionStyle::Border);
        const auto actions = *future.editActions(future.collection, 0, Side::Right);
        std::vector<std::string> images;
        for (const auto& action : actions) {
            images.push_back(action->image ? action->image->image.name : "");
            if (action->image) {
                EXPECT_EQ(action->image->size.width, *row.width - 16) << "eight points beside it";
            }
            EXPECT_EQ(action->backgroundColor, ui::ColorRef::named("mainBack"));
            EXPECT_EQ(action->title, std::nullopt);
            EXPECT_EQ(action->style, swipe::SwipeActionStyle::Default);
            EXPECT_EQ(action->hidesWhenSelected, action != actions.front());
        }
        EXPECT_EQ(images, row.images);
    }
}

/// A list whose first card is swiped open.
class OpenRowTest : public ListTest {
protected:
    OpenRowTest() {
        store(event("swiped", "25 June 2030"));
        store(event("other", "26 June 2030"));
        future.collection.reloadData();
        pan(0, -200);
        program.timeline.advance(Seconds(2));
    }

    /// Draws a finger over the card sideways.
    void pan(int item, double way) {
        auto& recognizer = *card(future, item).swipeController().panGestureRecognizer();
        const double speed = way < 0 ? -300 : 300;
        recognizer.begin({300, 50}, {}, {speed, 0});
        recognizer.change({300 + way / 2, 50}, {way / 2, 0}, {speed, 0});
        recognizer.change({300 + way, 50}, {way, 0}, {speed, 0});
        recognizer.end({speed, 0});
    }

    std::vector<std::string> buttons() {
        std::vector<std::string> names;
        for (const auto* button : card(future, 0).actionsView()->buttons())
            names.push_back(button->accessibilityName() + " " + button->imageName());
        return names;
    }

    /// Taps the button of that name.
    void tap(const std::string& name) {
        for (auto* button : card(future, 0).actionsView()->buttons()) {
            if (button->accessibilityName() == name)
                return button->tap();
        }
        FAIL() << "no button " << name;
    }

    MainViewController& future = list(ListType::Future);
};

TEST_F(OpenRowTest, ShowsThreeButtonsOfTheChosenSizeFromTheFarEdge) {
    EXPECT_EQ(card(future, 0).state(), swipe::SwipeState::Right);
    EXPECT_THAT(buttons(), ElementsAre("Edit editLarge", "Share shareLarge", "Delete DeleteLarge"));
    EXPECT_EQ(card(future, 0).actionsView()->minimumButtonWidth(), 60);
    EXPECT_NEAR(card(future, 0).contentView.frame().x, -180, 1e-9);
}

TEST_F(OpenRowTest, TheOtherSideHasNothing) {
    program.timeline.advance(Seconds(2));
    pan(1, 200);
    EXPECT_EQ(card(future, 1).state(), swipe::SwipeState::Center);
}

TEST_F(OpenRowTest, DeleteAsksAndLeavesTheRowOpen) {
    tap("Delete");
    program.top<ui::AlertController>().choose(0);
    program.timeline.advance(Seconds(2));
    EXPECT_EQ(card(future, 0).state(), swipe::SwipeState::Right);
}

TEST_F(OpenRowTest, EditAndShareCloseTheRow) {
    tap("Edit");
    EXPECT_EQ(program.top<ui::AlertController>().title(), "Edit");
    program.top<ui::AlertController>().cancel();
    program.timeline.advance(Seconds(2));
    EXPECT_EQ(card(future, 0).state(), swipe::SwipeState::Center);
    pan(0, -200);
    program.timeline.advance(Seconds(2));
    tap("Share");
    program.timeline.advance(Seconds(2));
    EXPECT_EQ(card(future, 0).state(), swipe::SwipeState::Center);
    EXPECT_EQ(program.stack().top()->screenName(), "ActivityViewController");
}

TEST_F(OpenRowTest, AReloadClosesIt) {
    future.collection.reloadData();
    EXPECT_EQ(card(future, 0).state(), swipe::SwipeState::Center);
    EXPECT_EQ(card(future, 0).contentView.frame().x, 0);
}

} // namespace
} // namespace tessivo
