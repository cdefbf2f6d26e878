#include "SelectValueVC/TableViewController.h"

#include "Interface/Animation.h"
#include "SelectValueVC/TableViewCell.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Listener final : public TableViewControllerDelegate {
public:
    void didSelectValue(const std::string& title, int index) override {
        heard.push_back(title + " " + std::to_string(index));
    }
    std::vector<std::string> heard;
};

class TableViewControllerTest : public testing::Test {
protected:
    std::shared_ptr<TableViewController> open(int selected,
                                              std::vector<std::string> texts = {"a", "b", "c"}) {
        auto picker =
            TableViewController::make(window, console, "Repeat", std::move(texts), selected, listener, 400);
        picker->loadViewIfNeeded();
        picker->tableView.setFrame({0, 0, 390, 300});
        picker->tableView.invalidateLayout();
        return picker;
    }

    static std::vector<bool> marks(const TableViewController& picker) {
        std::vector<bool> marked;
        for (const auto& [item, cell] : picker.tableView.visibleCells()) {
            const auto& row = static_cast<const TableViewCell&>(*cell);
            EXPECT_FALSE(row.isSelected());
            marked.push_back(row.checkmarkImageView.image() == ui::Image::named("blueCheck"));
            EXPECT_EQ(row.label.font().weight,
                      marked.back() ? ui::FontWeight::Medium : ui::FontWeight::Regular);
        }
        return marked;
    }

    fakes::Timeline line;
    fakes::RecordingConsole console;
    ui::MainScreen screen;
    ui::Animations animations{line, line};
    ui::WindowContext window{screen, animations};
    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

TEST_F(TableViewControllerTest, ThePresentChoiceIsReportedOnceAsTheSheetOpens) {
    const auto picker = open(2);
    EXPECT_THAT(listener->heard, ElementsAre("c 2"));
    EXPECT_THAT(marks(*picker), ElementsAre(false, false, true));
    EXPECT_EQ(picker->sheetPresentation.height, 400);
}

TEST_F(TableViewControllerTest, EachTapIsReportedAtOnceAndMovesTheMark) {
    const auto picker = open(0);
    listener->heard.clear();
    picker->tableView.tapItem(1);
    picker->tableView.tapItem(1);
    picker->tableView.tapItem(2);
    EXPECT_THAT(listener->heard, ElementsAre("b 1", "b 1", "c 2"));
    EXPECT_THAT(marks(*picker), ElementsAre(false, false, true));
}

TEST_F(TableViewControllerTest, TheFirstChoiceComesBackMarkedWhenItsRowIsDrawnAnew) {
    std::vector<std::string> texts(20, "row");
    const auto picker = open(0, texts);
    picker->tableView.tapItem(2);
    picker->tableView.scrolledTo({0, 600});
    picker->tableView.scrolledTo({0, 0});
    const auto marked = marks(*picker);
    EXPECT_TRUE(marked[0]);
    EXPECT_TRUE(marked[2]);
}

TEST_F(TableViewControllerTest, AChoiceThatIsNoRowOpensTheListWithNothingSelected) {
    for (const int selected : {-1, 3}) {
        const auto picker = open(selected);
        EXPECT_THAT(marks(*picker), ElementsAre(false, false, false));
    }
    EXPECT_THAT(open(0, {})->tableView.visibleCells(), IsEmpty());
    EXPECT_THAT(listener->heard, IsEmpty());
}

TEST_F(TableViewControllerTest, ARowThatDoesNotExistStopsTheProgram) {
    const auto picker = open(0);
    EXPECT_THROW(picker->didSelectItem(picker->tableView, 3), fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo
