#include "SettingVC/DefaulScreenViewController.h"

#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;

class Heard final : public DefaulScreenViewControllerDelegate {
public:
    void didSelectOption(const std::string& text, int type, ui::IndexPath path) override {
        told.push_back(text + " " + std::to_string(type) + " " + std::to_string(path.section) + "." +
                       std::to_string(path.row));
    }
    std::vector<std::string> told;
};

class OptionsTest : public testing::Test {
protected:
    DefaulScreenViewController& open(int type, long selected, std::vector<std::string> texts) {
        auto screen = std::make_shared<DefaulScreenViewController>(program.services());
        screen->type = type;
        screen->selectedItem = selected;
        screen->dataArray = std::move(texts);
        screen->indexpath = {1, type};
        screen->delegate = heard;
        program.stack().top()->present(screen);
        program.settle();
        return *screen;
    }

    static std::vector<bool> marks(const DefaulScreenViewController& screen) {
        std::vector<bool> marked;
        for (const auto& [item, cell] : screen.tableView.visibleCells())
            marked.push_back(dynamic_cast<OptionCell&>(*cell).checkmarkImageView.image() ==
                             ui::Image::named("blueCheck"));
        return marked;
    }

    SavedSettings& settings() { return program.services().platform().settings; }

    Program program;
    std::shared_ptr<Heard> heard = std::make_shared<Heard>();
};

TEST_F(OptionsTest, TheSampleCardHasTheChosenSizeAndItsGradientFillsIt) {
    settings().setInteger(settingKeys::eventSize, 0);
    auto& screen = open(0, 0, {"Small", "Medium", "Large"});
    EXPECT_EQ(screen.timeLabel.text(), "In a certain\ndays");
    EXPECT_EQ(screen.eventInformationLabel.text(), "Your Event Title\nDate of Event");
    const struct {
        int choice;
        double divisor;
    } rows[] = {{0, 4.6136}, {1, 4.06}, {2, 3.5}, {0, 4.6136}};
    for (const auto& [choice, divisor] : rows) {
        screen.tableView.tapItem(choice);
        EXPECT_EQ(screen.eventView.frame().size(), (ui::Size{390 - 32, 844 / divisor}));
        EXPECT_EQ(screen.eventView.sublayers().front()->frame(), (ui::Rect{0, 0, 390 - 32, 844 / divisor}));
        EXPECT_EQ(settings().integer(settingKeys::eventSize), choice);
    }
    screen.eventView.removeAllSublayers();
    screen.tableView.tapItem(2);
    EXPECT_EQ(screen.eventView.frame().height, 844 / 3.5);
}

TEST_F(OptionsTest, ATapIsToldEveryTimeAndLeavesTheMarkWhereItWas) {
    auto& screen = open(1, 0, {"Past", "Future"});
    EXPECT_THAT(marks(screen), ElementsAre(true, false));
    settings().setInteger(settingKeys::defaultScreen, 5);
    for (const int row : {0, 1, 1})
        screen.tableView.tapItem(row);
    EXPECT_THAT(heard->told, ElementsAre("Past 1 1.1", "Future 1 1.1", "Future 1 1.1"));
    EXPECT_EQ(settings().integer(settingKeys::defaultScreen), 1);
    EXPECT_THAT(marks(screen), ElementsAre(true, false));
    EXPECT_EQ(screen.selectedItem, 0);
    EXPECT_TRUE(screen.eventView.isHidden());
    screen.prevButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().screens().size(), 1U);
    EXPECT_THAT(marks(open(1, 1, {"Past", "Future"})), ElementsAre(false, true));
}

TEST_F(OptionsTest, AChoiceThatIsNoneMarksNothingAndASizeThatIsNoneSizesNothing) {
    settings().setInteger(settingKeys::eventSize, 9);
    auto& screen = open(0, 9, {"Small", "Medium", "Large"});
    EXPECT_THAT(marks(screen), ElementsAre(false, false, false));
    EXPECT_EQ(screen.eventView.frame().size(), ui::Size());
}

} // namespace
} // namespace tessivo
