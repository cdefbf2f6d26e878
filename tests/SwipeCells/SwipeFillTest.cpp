#include "SwipeCells/SwipeList.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using Side = SwipeActionsOrientation;
using Timing = HandlerInvocationTiming;

/// Cells of 320 by 100 points whose only button, 74 wide, fires when the row fills.
class SwipeFillTest : public testing::Test {
protected:
    /// Drags the row of cell 1 past its expansion point and lets go.
    void fill(Side side, const SwipeExpansionStyle& style) {
        action = list->action("Delete");
        (side == Side::Left ? list->left : list->right) = SwipeActions{action};
        list->options.expansionStyle = style;
        const double velocity = -100 * offsetSign(side);
        list->begin(1, velocity);
        for (const double way : {295.0, 300.0})
            list->change(1, -way * offsetSign(side), velocity);
        cell = list->collection.cellForItem(1);
        ASSERT_TRUE(list->cell(1).actionsView()->expanded());
        list->pan(1).end({velocity, 0});
    }
    [[nodiscard]] SwipeState state() const { return static_cast<SwipeCollectionViewCell&>(*cell).state(); }
    [[nodiscard]] SwipeActionsView* row() const {
        return static_cast<SwipeCollectionViewCell&>(*cell).actionsView();
    }

    std::shared_ptr<SwipeList> list = SwipeList::make();
    std::shared_ptr<SwipeAction> action;
    std::shared_ptr<ui::CollectionViewCell> cell;
};

TEST_F(SwipeFillTest, TheOwnerEndsAManualFillWhenItLikes) {
    for (const Timing timing : {Timing::With, Timing::After}) {
        list = SwipeList::make();
        fill(Side::Right, SwipeExpansionStyle::deleteAtFill(false, timing));
        EXPECT_EQ(list->heard.back(), timing == Timing::With ? "Delete 1" : "begin 1");
        list->line.advance(Seconds(5));
        EXPECT_THAT(list->heard, ElementsAre("begin 1", "Delete 1"));
        EXPECT_EQ(list->centerX(1), 160 - 320 - 74) << "it waits filled";
        EXPECT_EQ(state(), SwipeState::Right);
        list->items = 4;
        action->fulfill(ExpansionFulfillmentStyle::Delete);
        EXPECT_THAT(list->heard, ElementsAre("begin 1", "Delete 1", "end 1"));
        EXPECT_EQ(list->collection.numberOfItems(), 4);
        action->fulfill(ExpansionFulfillmentStyle::Delete);
        list->line.advance(Seconds(5));
        EXPECT_EQ(list->collection.numberOfItems(), 4) << "only the first answer counts";
        EXPECT_EQ(state(), SwipeState::Center);
    }
}

TEST_F(SwipeFillTest, AResetLetsTheCellReturn) {
    fill(Side::Left, SwipeExpansionStyle::plainFill());
    list->line.advance(Seconds(1));
    EXPECT_EQ(list->centerX(1), 160 + 320 + 74);
    action->fulfill(ExpansionFulfillmentStyle::Reset);
    EXPECT_EQ(state(), SwipeState::AnimatingToCenter);
    list->line.advance(Seconds(3));
    EXPECT_EQ(state(), SwipeState::Center);
    EXPECT_EQ(list->centerX(1), 160);
    EXPECT_THAT(list->heard, ElementsAre("begin 1", "Delete 1", "end 1", "end 1"));
    EXPECT_EQ(list->collection.numberOfItems(), 5);
}

TEST_F(SwipeFillTest, AnAnswerAfterTheRowWasClosedStillTakesTheItem) {
    fill(Side::Right, SwipeExpansionStyle::deleteAtFill(false, Timing::With));
    list->cell(1).hideSwipe(true);
    list->line.advance(Seconds(3));
    EXPECT_EQ(row(), nullptr);
    list->items = 4;
    action->fulfill(ExpansionFulfillmentStyle::Delete);
    EXPECT_EQ(list->collection.numberOfItems(), 4);
    EXPECT_EQ(cell->contentView.mask(), nullptr);
}

TEST_F(SwipeFillTest, ARowThatWasPulledOutMeanwhileLeavesAllTheSame) {
    fill(Side::Right, SwipeExpansionStyle::deleteAtFill(false, Timing::With));
    list->line.advance(Seconds(1));
    list->cell(1).setSwipeOffset(-100, false);
    list->items = 4;
    action->fulfill(ExpansionFulfillmentStyle::Delete);
    EXPECT_EQ(cell->contentView.center().x, 160 - 320 - 74);
    EXPECT_EQ(cell->contentView.drawnFrame().midX(), 60);
}

TEST_F(SwipeFillTest, ABounceCallsTheActionAndCloses) {
    fill(Side::Right, SwipeExpansionStyle::bounceAtHalf());
    EXPECT_THAT(list->heard, ElementsAre("begin 1", "end 1", "Delete 1"));
    EXPECT_EQ(state(), SwipeState::AnimatingToCenter);
    list->line.advance(Seconds(3));
    EXPECT_EQ(state(), SwipeState::Center);
    EXPECT_EQ(list->centerX(1), 160);
}

TEST_F(SwipeFillTest, ATapOnTheExpandingButtonFillsToo) {
    list->right = SwipeActions{list->action("Delete"), list->action("Edit")};
    list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill(false, Timing::After);
    list->open(1);
    auto& view = *list->cell(1).actionsView();
    view.buttons().front()->tap();
    EXPECT_EQ(list->heard.back(), "Edit 1");
    EXPECT_FALSE(view.expanded());
    view.buttons().back()->tap();
    EXPECT_TRUE(view.expanded());
    EXPECT_EQ(list->impacts.count, 0) << "only a drag is felt";
    list->line.advance(Seconds(1));
    EXPECT_EQ(list->heard.back(), "Delete 1");
    EXPECT_EQ(list->centerX(1), 160 - 320 - 74);
}

TEST_F(SwipeFillTest, TheCellLeavesUnderAMaskThatCloses) {
    for (const Side side : {Side::Left, Side::Right}) {
        for (const Timing timing : {Timing::With, Timing::After}) {
            SCOPED_TRACE(testing::Message()
                         << offsetSign(side) << (timing == Timing::With ? " with" : " after"));
            list = SwipeList::make();
            fill(side, SwipeExpansionStyle::deleteAtFill(false, timing));
            list->line.advance(Seconds(1));
            list->items = 4;
            action->fulfill(ExpansionFulfillmentStyle::Delete);
            const ui::View* mask = cell->contentView.mask();
            ASSERT_NE(mask, nullptr);
            EXPECT_EQ(mask->drawnFrame(), (ui::Rect{side == Side::Left ? -640.0 : 0, 0, 1280, 100}));
            EXPECT_EQ(mask->frame().height, 0);
            list->line.advance(Seconds(0.16));
            EXPECT_NEAR(mask->drawnFrame().height, 50, 10);
            EXPECT_EQ(mask->drawnFrame().y, 0);
            EXPECT_NEAR(row()->drawnValue(ui::AnimatableProperty::Alpha), timing == Timing::With ? 1 : 0.5,
                        0.1);
            EXPECT_EQ(cell->contentView.center().x, 160 - offsetSign(side) * (320 + 74));
            EXPECT_FALSE(list->cell(1).pointInside({-1, 10}));
            EXPECT_NE(list->collection.hitTest({160, 150}), nullptr);
            EXPECT_TRUE(list->cell(3).pointInside({10, 50}));
            EXPECT_FALSE(list->cell(2).swipeController().tapGestureRecognizer()->recognize({10, 10}));
            list->cell(2).showSwipe(side, false);
            EXPECT_NE(state(), SwipeState::AnimatingToCenter) << "a touch meanwhile does not call it back";
            list->cell(2).hideSwipe(false);
            list->line.advance(Seconds(1));
            EXPECT_EQ(cell->contentView.mask(), nullptr);
            EXPECT_EQ(state(), SwipeState::Center);
            EXPECT_EQ(row(), nullptr);
            EXPECT_FALSE(list->line.framesAreAskedFor());
        }
    }
}

} // namespace
} // namespace tessivo::swipe
