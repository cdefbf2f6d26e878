#include "EditEventVC/EditEventTitleViewController.h"

#include "support/EditTest.h"

namespace tessivo {
namespace {

using testing::ElementsAre;

class EditTitleTest : public EditTest {
protected:
    EditEventTitleViewController& openOn(const EventItem& item) {
        store(item);
        return open<EditEventTitleViewController>(EditScreen::Title, row());
    }
};

TEST_F(EditTitleTest, OpensOnTheStoredTitleWithSaveOn) {
    auto& screen = openOn(summer());
    EXPECT_EQ(screen.titleLabel.text(), "Edit Title");
    EXPECT_EQ(screen.textField.text(), "Summer");
    EXPECT_EQ(screen.CountLabel.text(), "Title (6/20)");
    EXPECT_TRUE(screen.nextButton.isEnabled());
    EXPECT_EQ(screen.eventView.eventInformationLabel.text(), "Summer\n25 June 2030");
    EXPECT_FALSE(screen.textField.editTo("More than twenty chars"));
    screen.textField.editTo("");
    EXPECT_FALSE(screen.nextButton.isEnabled());
    screen.textField.editTo("Winter");
    EXPECT_TRUE(screen.nextButton.isEnabled());
    EXPECT_EQ(screen.eventView.eventInformationLabel.text(), "Winter\n25 June 2030");
}

TEST_F(EditTitleTest, TheCardCountsInTheWordsOfStoredEvents) {
    const std::tuple<std::string, int, const char*> rows[] = {{"25 June 2030", 0, "In 103\nHour"},
                                                              {"25 June 2030", 1, "In 4\nDays"},
                                                              {"01 June 2030", 2, "Since 2\nWeek"},
                                                              {"25 June 2032", 3, "In 24\nMonths"},
                                                              {"25 June 2010", 4, "Since 20\nYear"}};
    store(summer());
    for (const auto& [day, unit, count] : rows) {
        const auto event = row();
        event->setDateEvent(day);
        event->setTimeFormat(static_cast<std::int16_t>(unit));
        auto& screen = open<EditEventTitleViewController>(EditScreen::Title, event);
        EXPECT_EQ(screen.eventView.timeLabel.text(), count);
        screen.dismiss(false);
    }
}

TEST_F(EditTitleTest, SaveStoresPassesRetitlesAndShowsTheLists) {
    remind(summer());
    auto& screen = openOn(summer());
    screen.textField.editTo("Winter");
    EXPECT_THAT(save(screen),
                ElementsAre("save Winter, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 2 0 Pack, 4 9999",
                            "pass", "look up", "-- CustomTabBarController", "remove",
                            "add Winter/Pack 21.6. 10:30",
                            "> Уведомление с идентификатором " + identifier + " обновлено"));
}

TEST_F(EditTitleTest, UnchangedAndWithoutANotificationSaveGoesTheSameWay) {
    auto& screen = openOn(summer());
    EXPECT_THAT(save(screen),
                ElementsAre("save Summer, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 2 0 Pack, 4 9999",
                            "pass", "look up", "-- CustomTabBarController",
                            "> Уведомление с идентификатором " + identifier + " не найдено"));
}

TEST_F(EditTitleTest, WithoutAnIdentityTheTitleStaysInMemoryAndTheScreenStays) {
    EventRecord record;
    record.title = "Summer";
    record.dateEvent = "25 June 2030";
    record.color = 0;
    const auto event = std::make_shared<EventCoreData>(record);
    auto& screen = open<EditEventTitleViewController>(EditScreen::Title, event);
    screen.textField.editTo("Winter");
    screen.nextButton.tap();
    EXPECT_EQ(event->title(), "Winter");
    EXPECT_EQ(program.stack().top(), &screen);
}

TEST_F(EditTitleTest, BackWritesNothing) {
    auto& screen = openOn(summer());
    screen.textField.editTo("Winter");
    screen.prevButton.tap();
    program.settle();
    EXPECT_EQ(row()->title(), "Summer");
}

TEST_F(EditTitleTest, AnEventThatWentMeanwhileIsSavedNowhere) {
    auto& screen = openOn(summer());
    program.services().coreDataStack().deleteEvent(id);
    screen.nextButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().top()->screenName(), "CustomTabBarController");
    EXPECT_TRUE(program.services().coreDataStack().fetchEvents().empty());
}

} // namespace
} // namespace tessivo
