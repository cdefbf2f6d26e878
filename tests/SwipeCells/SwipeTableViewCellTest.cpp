#include "SwipeCells/SwipeTableViewCell.h"

#include "Interface/Touch.h"
#include "SwipeCells/SwipeTable.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;

class SwipeTableViewCellTest : public testing::Test {
protected:
    SwipeTableViewCellTest() {
        owner->right = SwipeActions{owner->action("Delete"), owner->action("Edit")};
        owner->left = SwipeActions{owner->action("Pin")};
    }

    void swipe(int item, double way, double velocity) {
        owner->begin(item, velocity);
        owner->change(item, way, velocity);
        owner->pan(item).end({velocity, 0});
        owner->line.advance(Seconds(3));
    }

    std::shared_ptr<SwipeTable> owner = SwipeTable::make();
};

TEST_F(SwipeTableViewCellTest, TheCellItselfMovesAndTheRowHangsOnItsEdge) {
    swipe(1, -60, -100);
    auto& cell = owner->cell(1);
    EXPECT_EQ(cell.state(), SwipeState::Right);
    EXPECT_EQ(cell.frame(), (ui::Rect{-148, 100, 320, 100}));
    EXPECT_EQ(cell.contentView.frame(), (ui::Rect{0, 0, 320, 100}));
    EXPECT_EQ(cell.actionsView()->frame(), (ui::Rect{320, 0, 640, 100}));
    EXPECT_EQ(cell.actionsView()->visibleWidth(), 148);
    swipe(1, 60, 100);
    swipe(1, 60, 100);
    EXPECT_EQ(cell.state(), SwipeState::Left);
    EXPECT_EQ(cell.frame().x, 74);
    EXPECT_EQ(cell.actionsView()->frame(), (ui::Rect{-640, 0, 640, 100}));
    EXPECT_THAT(owner->heard, ElementsAre("begin 1", "end 1", "begin 1"));
}

TEST_F(SwipeTableViewCellTest, TheTableMovesASwipedCellNoMoreThanUpAndDown) {
    swipe(1, -60, -100);
    owner->cell(1).place({0, 300, 200, 80});
    EXPECT_EQ(owner->cell(1).frame(), (ui::Rect{-148, 300, 200, 80}));
    owner->cell(1).hideSwipe(true);
    owner->cell(1).place({7, 100, 320, 100});
    EXPECT_EQ(owner->cell(1).frame(), (ui::Rect{0, 100, 320, 100})) << "on its way back, too";
    owner->cell(2).place({5, 300, 200, 80});
    EXPECT_EQ(owner->cell(2).frame(), (ui::Rect{5, 300, 200, 80}));
}

TEST_F(SwipeTableViewCellTest, ItsMarginsStayWhileItIsMoved) {
    auto& cell = owner->cell(1);
    cell.setLayoutMargins({1, 2, 3, 4});
    swipe(1, -60, -100);
    cell.setLayoutMargins({0, 150, 0, 0});
    EXPECT_EQ(cell.layoutMargins(), (ui::Insets{1, 2, 3, 4}));
    cell.hideSwipe(false);
    EXPECT_EQ(cell.layoutMargins(), (ui::Insets{0, 150, 0, 0}));
}

TEST_F(SwipeTableViewCellTest, ATouchBelongsToTheCellsHeightWhereverAcross) {
    auto& open = owner->cell(1);
    swipe(1, -60, -100);
    const std::tuple<double, double, bool> places[] = {{-500, 50, true}, {900, 50, true},  {10, 0, false},
                                                       {10, 0.5, true},  {10, 99.5, true}, {10, 100, false}};
    for (const auto& [x, y, inside] : places)
        EXPECT_EQ(open.pointInside({x, y}), inside) << x << " " << y;
    EXPECT_EQ(open.state(), SwipeState::Right);
    EXPECT_FALSE(owner->cell(3).pointInside({10, 50})) << "the first touch beside it only closes";
    EXPECT_EQ(open.state(), SwipeState::AnimatingToCenter);
    EXPECT_TRUE(owner->cell(3).pointInside({10, 50}));
}

TEST_F(SwipeTableViewCellTest, ScrollingTheTableCloses) {
    swipe(1, -60, -100);
    owner->table.panGestureRecognizer()->begin({0, 0}, {0, 9}, {0, 90});
    EXPECT_EQ(owner->cell(1).state(), SwipeState::AnimatingToCenter);
    owner->line.advance(Seconds(3));
    EXPECT_EQ(owner->cell(1).frame().x, 0);
}

TEST_F(SwipeTableViewCellTest, ASelectedRowIsSelectedAgainOnlyWhileItsRowStands) {
    for (const bool animated : {true, false}) {
        owner->table.selectItem(1);
        swipe(1, -60, -100);
        EXPECT_THAT(owner->table.selectedItems(), testing::IsEmpty());
        owner->cell(1).hideSwipe(animated);
        EXPECT_EQ(owner->table.selectedItems().contains(1), animated);
        owner->line.advance(Seconds(3));
    }
}

TEST_F(SwipeTableViewCellTest, AFillTakesTheRowOutAtOnce) {
    owner->options.expansionStyle = SwipeExpansionStyle::deleteAfterFill();
    owner->begin(1, -100);
    for (const double way : {-295.0, -300.0}) // whether it has expanded is asked before each move
        owner->change(1, way, -100);
    const auto gone = owner->table.rows()[1];
    ASSERT_TRUE(owner->cell(1).actionsView()->expanded());
    owner->pan(1).end({-100, 0});
    EXPECT_EQ(owner->table.rows().size(), 5U);
    owner->line.advance(Seconds(3));
    EXPECT_EQ(owner->table.rows().size(), 4U);
    EXPECT_EQ(owner->table.itemFor(*gone), std::nullopt);
    EXPECT_EQ(owner->cell(1).frame(), (ui::Rect{0, 100, 320, 100}));
    EXPECT_EQ(gone->mask(), nullptr);
    EXPECT_EQ(gone->frame(), (ui::Rect{0, 100, 320, 100}));
    EXPECT_EQ(static_cast<SwipeTableViewCell&>(*gone).state(), SwipeState::Center);
    EXPECT_THAT(owner->heard, ElementsAre("begin 1", "Delete 1", "end 1"));
}

TEST_F(SwipeTableViewCellTest, TheOwnerMayTakeTheCellAwayAsItHearsOfTheEnd) {
    using Timing = HandlerInvocationTiming;
    for (const auto how : {ExpansionFulfillmentStyle::Delete, ExpansionFulfillmentStyle::Reset}) {
        owner = SwipeTable::make();
        const auto action = owner->action("Delete");
        owner->right = SwipeActions{action};
        owner->options.expansionStyle = SwipeExpansionStyle::deleteAtFill(false, Timing::With);
        swipe(1, -60, -100);
        const std::weak_ptr<ui::TableViewCell> gone = owner->table.rows()[1];
        owner->cell(1).actionsView()->buttons().front()->tap();
        owner->line.advance(Seconds(2));
        owner->ended = [this] { owner->table.setRows({}, 100); };
        action->fulfill(how);
        EXPECT_TRUE(gone.expired());
        owner->line.advance(Seconds(2));
        EXPECT_EQ(owner->heard, std::vector<std::string>({"begin 1", "Delete 1", "end 1"}));
    }
}

TEST_F(SwipeTableViewCellTest, TheOwnerMayEmptyTheTableAsAnotherCellOpens) {
    swipe(1, -60, -100);
    const auto rows = owner->table.rows();
    owner->ended = [this] { owner->table.setRows({}, 100); };
    owner->cell(2).showSwipe(SwipeActionsOrientation::Right, false);
    for (const auto& row : rows)
        EXPECT_EQ(static_cast<SwipeTableViewCell&>(*row).state(), SwipeState::Center);
    EXPECT_EQ(rows[2]->frame().x, 0);
}

TEST_F(SwipeTableViewCellTest, ATouchBesideAnOpenRowMayEmptyTheTable) {
    owner->cell(1).showSwipe(SwipeActionsOrientation::Right, false);
    owner->ended = [this] { owner->table.setRows({}, 100); };
    EXPECT_EQ(owner->table.hitTest({100, 350}), &owner->table);
    EXPECT_EQ(owner->count(), 0);
}

TEST_F(SwipeTableViewCellTest, AFingerTapsSwipesAndPressesItsRows) {
    Seconds time{1};
    const auto dragged = ui::Touch::begin(owner->table, {300, 150}, time);
    for (double x = 290; x > 150; x -= 10)
        dragged->moveTo({x, 150}, time += Seconds(0.016));
    dragged->release(time += Seconds(0.2));
    owner->line.advance(Seconds(3));
    ASSERT_EQ(owner->cell(1).state(), SwipeState::Right);
    ui::Touch::begin(owner->table, {315, 150}, time)->release(time);
    EXPECT_THAT(owner->heard, testing::Contains("Delete 1"));
    ui::Touch::begin(owner->table, {100, 350}, time)->release(time); // closes the open row, no more
    owner->line.advance(Seconds(3));
    EXPECT_THAT(owner->table.selectedItems(), testing::IsEmpty());
    ui::Touch::begin(owner->table, {100, 350}, time)->release(time);
    EXPECT_THAT(owner->table.selectedItems(), ElementsAre(3));
}

TEST_F(SwipeTableViewCellTest, WithoutATableNothingHappens) {
    SwipeTableViewCell cell({owner->animations, owner->line, owner->texts, nullptr, {}});
    cell.delegate = owner;
    cell.setFrame({0, 0, 320, 100});
    cell.swipeController().panGestureRecognizer()->begin({160, 50}, {0, 0}, {-100, 0});
    cell.showSwipe(SwipeActionsOrientation::Right, false);
    EXPECT_EQ(cell.state(), SwipeState::Center);
    EXPECT_FALSE(cell.pointInside({10, 10}));
    EXPECT_THAT(cell.accessibilityCustomActions(), testing::IsEmpty());
    EXPECT_FALSE(cell.performAccessibilityCustomAction({"Delete", owner->right->front(), 1}));
}

} // namespace
} // namespace tessivo::swipe
