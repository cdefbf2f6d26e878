#include "SwipeCells/SwipeCell.h"

#include "SwipeCells/SwipeList.h"
#include "SwipeCells/SwipeTable.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using Side = SwipeActionsOrientation;

/// What both kinds of cells have in common, in a collection.
class SwipeCellTest : public testing::Test {
protected:
    SwipeCellTest() {
        list->right = SwipeActions{list->action("Delete"), list->action("Edit")};
        list->left = SwipeActions{list->action("Pin")};
    }

    std::shared_ptr<SwipeList> list = SwipeList::make();
};

TEST_F(SwipeCellTest, OnlyACellAtRestIsHighlighted) {
    auto& cell = list->cell(1);
    cell.setHighlighted(true);
    EXPECT_TRUE(cell.isHighlighted());
    list->begin(1, -100);
    EXPECT_FALSE(cell.isHighlighted()) << "the swipe takes the touch over";
    cell.setHighlighted(true);
    EXPECT_FALSE(cell.isHighlighted());
    list->pan(1).end({0, 0});
    cell.setHighlighted(true);
    EXPECT_FALSE(cell.isHighlighted());
    cell.hideSwipe(false);
    cell.setHighlighted(true);
    EXPECT_TRUE(cell.isHighlighted());
}

TEST_F(SwipeCellTest, TouchesFindTheButtonsBesideTheCellsContent) {
    list->open(1);
    auto& cell = list->cell(1);
    EXPECT_EQ(cell.hitTest({300, 50}), cell.actionsView()->buttons().back());
    EXPECT_EQ(cell.hitTest({200, 50}), cell.actionsView()->buttons().front());
    EXPECT_EQ(cell.hitTest({100, 50}), &cell.contentView);
    cell.setHidden(true);
    EXPECT_EQ(cell.hitTest({300, 50}), nullptr);
}

TEST_F(SwipeCellTest, ForReuseACellIsClosedAndItsItemSelectedAgain) {
    auto& cell = list->cell(1);
    list->collection.selectItem(1);
    list->open(1);
    ASSERT_THAT(list->collection.selectedItems(), testing::IsEmpty());
    cell.contentView.setClipsToBounds(true);
    const auto tap = std::make_shared<ui::TapGestureRecognizer>();
    list->collection.addGestureRecognizer(tap);
    tap->setEnabled(false);
    list->collection.panGestureRecognizer()->setEnabled(false);
    cell.prepareForReuse();
    EXPECT_EQ(cell.state(), SwipeState::Center);
    EXPECT_EQ(cell.actionsView(), nullptr);
    EXPECT_FALSE(cell.contentView.clipsToBounds());
    EXPECT_THAT(list->collection.selectedItems(), ElementsAre(1));
    EXPECT_TRUE(tap->isEnabled());
    EXPECT_FALSE(list->collection.panGestureRecognizer()->isEnabled())
        << "scrolling is the list's own matter";
    list->collection.deselectItem(1);
    cell.prepareForReuse();
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty()) << "once only";
}

TEST_F(SwipeCellTest, ACellThatLeavesTheScreenLeavesItsSwipe) {
    const auto cell = list->collection.cellForItem(1);
    list->collection.selectItem(1);
    list->open(1);
    cell->willLeaveWindow();
    cell->prepareForReuse();
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty()) << "what left is not selected again";
    list->collection.selectItem(1);
    list->cell(1).showSwipe(Side::Right, true);
    list->line.advance(Seconds(0.1));
    list->items = 0;
    list->collection.reloadData();
    EXPECT_EQ(static_cast<SwipeCell&>(*cell).state(), SwipeState::Center);
    EXPECT_EQ(static_cast<SwipeCell&>(*cell).actionsView(), nullptr);
    EXPECT_FALSE(list->line.framesAreAskedFor());
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty());
}

TEST_F(SwipeCellTest, OnlyTheStartOfScrollingCloses) {
    auto& scrolling = *list->collection.panGestureRecognizer();
    scrolling.begin({0, 0}, {0, 9}, {0, 90});
    list->cell(1).showSwipe(Side::Right, false);
    scrolling.change({0, 0}, {0, 19}, {0, 90});
    scrolling.end({0, 90});
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
}

TEST_F(SwipeCellTest, ACellHearsOfTheListThatHoldsItAlone) {
    const auto former = SwipeTable::make();
    const auto cell = former->table.rows()[1];
    auto& swiped = static_cast<SwipeTableViewCell&>(*cell);
    former->right = SwipeActions{former->action("Delete")};
    ui::TableView next;
    next.setFrame({0, 0, 320, 600});
    next.setRows({cell}, 100);
    EXPECT_EQ(swiped.tableView(), &next);
    swiped.showSwipe(Side::Right, false);
    former->table.panGestureRecognizer()->begin({0, 0}, {0, 9}, {0, 90});
    EXPECT_EQ(swiped.state(), SwipeState::Right);
    next.panGestureRecognizer()->begin({0, 0}, {0, 9}, {0, 90});
    EXPECT_EQ(swiped.state(), SwipeState::AnimatingToCenter);
    next.setRows({}, 100);
    EXPECT_EQ(swiped.state(), SwipeState::Center);
}

TEST_F(SwipeCellTest, AFingerOnAnyCellTakesTheTapsOfAll) {
    list->left.reset();
    auto& pan = list->pan(1);
    auto& tap = *list->cell(2).swipeController().tapGestureRecognizer();
    std::vector<bool> taken;
    pan.addTarget(this, [&](ui::GestureRecognizer&) { taken.push_back(tap.recognize({10, 10})); });
    list->begin(1, 100); // no actions on that side: the cell stays in the centre
    list->change(1, 30, 100);
    pan.end({100, 0});
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_THAT(taken, ElementsAre(true, true, true));
    EXPECT_FALSE(tap.recognize({10, 10}));
}

TEST_F(SwipeCellTest, ACellMovesInTheSizeThatItsListHasGivenIt) {
    list->cell(1).showSwipe(Side::Right, false);
    list->cell(1).place({0, 100, 640, 100});
    list->cell(1).hideSwipe(true);
    EXPECT_EQ(list->cell(1).contentView.drawnFrame().width, 640) << "the width does not take part";
    EXPECT_EQ(list->centerX(1), 320);
    EXPECT_LT(list->cell(1).contentView.drawnFrame().midX(), 320);
    list->cell(2).showSwipe(Side::Right, true);
    for (const auto* ground : list->cell(2).actionsView()->subviews())
        EXPECT_EQ(ground->drawnFrame().size(), (ui::Size{640, 100})) << "nor does that of the buttons";
}

TEST_F(SwipeCellTest, ChangedTraitsSettleAnOpenCellAtOnce) {
    list->open(1);
    list->collection.setSafeAreaInsets({0, 0, 0, 30});
    for (int item = 0; item < 3; ++item)
        list->cell(item).traitsDidChange();
    EXPECT_EQ(list->centerX(1), 160 - 148 - 30);
    EXPECT_EQ(list->cell(1).actionsView()->visibleWidth(), 148);
    EXPECT_EQ(list->centerX(0), 160);
    list->cell(1).hideSwipe(false);
    list->begin(2, -100);
    list->change(2, -30, -100);
    list->cell(2).traitsDidChange();
    EXPECT_EQ(list->centerX(2), 130) << "a finger holds it";
}

TEST_F(SwipeCellTest, OfTwoCellsUnderAFingerTheFirstOfTheListIsMoved) {
    for (const int item : {1, 3}) {
        list->begin(item, -100);
        list->pan(item).end({-100, 0});
    }
    list->line.advance(Seconds(2));
    for (const int item : {1, 3})
        list->cell(item).setState(SwipeState::Dragging);
    for (const int item : {1, 3}) {
        const double before = list->centerX(item);
        list->begin(item, -100);
        list->change(item, 10, 100);
        EXPECT_EQ(list->centerX(item) - before, item == 1 ? 10 : 0);
    }
}

TEST_F(SwipeCellTest, OnlyAnOpenCellIsHidden) {
    list->begin(1, -100);
    list->change(1, -30, -100);
    for (const bool animated : {true, false})
        list->cell(1).hideSwipe(animated);
    EXPECT_EQ(list->cell(1).state(), SwipeState::Dragging) << "a finger holds it";
    EXPECT_EQ(list->centerX(1), 130);
    list->pan(1).end({-100, 0});
    for (const bool animated : {true, false})
        list->cell(1).hideSwipe(animated);
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter) << "on its way already";
    EXPECT_THAT(list->heard, ElementsAre("begin 1", "end 1"));
}

TEST_F(SwipeCellTest, HiddenAtOnceItStandsInItsPlaceAtOnce) {
    list->collection.selectItem(1);
    list->cell(1).showSwipe(Side::Right, true);
    list->line.advance(Seconds(0.1));
    list->cell(1).hideSwipe(false);
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_EQ(list->cell(1).contentView.drawnFrame(), (ui::Rect{0, 0, 320, 100}));
    EXPECT_FALSE(list->line.framesAreAskedFor());
    EXPECT_THAT(list->heard, ElementsAre("begin 1", "end 1"));
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty()) << "its row has gone by then";
    list->cell(1).prepareForReuse();
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty());
    list->open(1);
    list->cell(1).hideSwipe(true);
    EXPECT_THAT(list->collection.selectedItems(), testing::IsEmpty()) << "nor was it selected this time";
}

} // namespace
} // namespace tessivo::swipe
