#include "SwipeCells/SwipeList.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SwipeControllerTest : public testing::Test {
protected:
    SwipeControllerTest() { list->right = SwipeActions{list->action("Delete"), list->action("Edit")}; }

    std::shared_ptr<SwipeList> list = SwipeList::make();
};

TEST_F(SwipeControllerTest, AReleaseIntoTheCentreKeepsTheRowUntilItHasSettled) {
    list->open(1);
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
    EXPECT_DOUBLE_EQ(list->centerX(1), 160 - 148);
    list->begin(1, 100);
    list->change(1, 20, 100);
    list->pan(1).end({100, 0});
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_NE(list->cell(1).actionsView(), nullptr);
    EXPECT_THAT(list->heard, ElementsAre("begin 1", "end 1"));
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).actionsView(), nullptr);
    EXPECT_DOUBLE_EQ(list->centerX(1), 160);
}

TEST_F(SwipeControllerTest, ASecondFingerOnAnotherCellDoesNothing) {
    list->begin(1, -100);
    list->begin(2, -100);
    list->change(2, -50, -100);
    EXPECT_EQ(list->cell(2).state(), SwipeState::Center);
    EXPECT_DOUBLE_EQ(list->centerX(2), 160);
}

TEST_F(SwipeControllerTest, WithoutActionsTheCellStaysWhereItIs) {
    list->begin(1, 100);
    list->change(1, 50, 100);
    list->pan(1).end({100, 0});
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_DOUBLE_EQ(list->centerX(1), 160);
    EXPECT_THAT(list->heard, IsEmpty());
}

TEST_F(SwipeControllerTest, APanBeginsUpToTheDiagonal) {
    for (const double y : {-31.0, -30.0, 0.0, 30.0, 31.0}) {
        const bool begins = std::abs(y) <= 30;
        EXPECT_EQ(list->pan(1).begin({160, 50}, {-30, y}, {-100, 0}), begins) << y;
        list->pan(1).cancel();
    }
}

TEST_F(SwipeControllerTest, ReleasedExactlyInPlaceItStillSettles) {
    list->begin(1, -100);
    list->change(1, -148, -100);
    list->pan(1).end({-100, 0});
    list->line.advance(Seconds(3));
    EXPECT_DOUBLE_EQ(list->centerX(1), 160 - 148);
    EXPECT_FALSE(list->line.framesAreAskedFor());
}

TEST_F(SwipeControllerTest, TapsTouchesBesideAndScrollingClose) {
    auto& tap = *list->cell(2).swipeController().tapGestureRecognizer();
    EXPECT_FALSE(tap.recognize({10, 10}));
    list->open(1);
    (void)list->collection.hitTest({200, 250});
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
    list->line.advance(Seconds(3));
    list->open(1);
    list->collection.panGestureRecognizer()->begin({0, 0}, {0, 9}, {0, 90});
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
    list->line.advance(Seconds(3));
    list->open(1);
    EXPECT_TRUE(list->cell(1).swipeController().tapGestureRecognizer()->recognize({10, 10}));
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_FALSE(tap.recognize({10, 10})) << "a swipe that is over holds no tap back";
}

TEST_F(SwipeControllerTest, ATapOnAButtonCallsItsHandlerAndClosesWhereAsked) {
    list->right->front()->hidesWhenSelected = true;
    list->open(1);
    list->heard.clear();
    list->cell(1).actionsView()->buttons().front()->tap();
    EXPECT_THAT(list->heard, ElementsAre("Edit 1"));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
    list->cell(1).actionsView()->buttons().back()->tap();
    EXPECT_THAT(list->heard, ElementsAre("Edit 1", "end 1", "Delete 1"));
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
}

TEST_F(SwipeControllerTest, AHandlerMayReloadTheListUnderItsButton) {
    list->right->front()->handler = [this](SwipeAction&, int) { list->collection.reloadData(); };
    list->open(1);
    list->cell(1).actionsView()->buttons().back()->tap();
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_DOUBLE_EQ(list->centerX(1), 160);
}

TEST_F(SwipeControllerTest, AFillThatDeletesCallsTheHandlerOnceAndTakesTheItem) {
    for (const auto timing : {HandlerInvocationTiming::With, HandlerInvocationTiming::After}) {
        list = SwipeList::make();
        list->right = SwipeActions{list->action("Delete")};
        list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill(true, timing);
        list->begin(1, -100);
        list->change(1, -150, -100);
        list->change(1, -155, -100); // the finger has crossed 0.8 of the cell: it jumps
        list->items = 4;
        ASSERT_TRUE(list->cell(1).actionsView()->expanded());
        EXPECT_EQ(list->impacts.count, 1);
        list->pan(1).end({-100, 0});
        EXPECT_EQ(list->collection.numberOfItems(), timing == HandlerInvocationTiming::With ? 4 : 5);
        list->line.advance(Seconds(3));
        EXPECT_EQ(list->collection.numberOfItems(), 4);
        EXPECT_EQ(std::ranges::count(list->heard, "Delete 1"), 1);
        for (int item = 0; item < 4; ++item) {
            EXPECT_EQ(list->cell(item).state(), SwipeState::Center);
            EXPECT_DOUBLE_EQ(list->centerX(item), 160);
            EXPECT_EQ(list->cell(item).contentView.mask(), nullptr);
        }
    }
}

TEST_F(SwipeControllerTest, OffsetsByTheProgramOpenOneCellAtATime) {
    list->cell(1).showSwipe(SwipeActionsOrientation::Right, false);
    EXPECT_DOUBLE_EQ(list->centerX(1), 160 - 148);
    list->cell(2).setSwipeOffset(-5000, false);
    EXPECT_DOUBLE_EQ(list->centerX(2), 160 - 320);
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
    list->cell(2).setSwipeOffset(0, false);
    EXPECT_EQ(list->cell(2).state(), SwipeState::Center);
    EXPECT_DOUBLE_EQ(list->centerX(2), 160);
}

TEST_F(SwipeControllerTest, AssistiveTechnologyIsOfferedBothSidesNearestFirst) {
    list->left = SwipeActions{list->action("Pin"), list->action("Mute")};
    list->right->back()->title.reset();
    list->right->push_back(list->action(""));
    list->right->back()->title.reset();
    list->right->back()->accessibilityLabel = "Share";
    list->right->back()->handler = {};
    list->left->back()->accessibilityLabel = "a title comes first";
    list->right->front()->style = SwipeActionStyle::Destructive;
    std::vector<std::string> names;
    const auto offered = list->cell(1).accessibilityCustomActions();
    for (const auto& custom : offered)
        names.push_back(custom.name);
    EXPECT_THAT(names, ElementsAre("Delete", "Pin", "SwipeAction", "Share", "Mute"));
    EXPECT_EQ(list->cell(1).accessibilityActionNames(), names);
    EXPECT_TRUE(list->cell(1).performAccessibilityAction("Mute"));
    EXPECT_TRUE(list->cell(1).performAccessibilityAction("Share"));
    EXPECT_FALSE(list->cell(1).performAccessibilityAction("Fly"));
    EXPECT_EQ(list->collection.numberOfItems(), 5);
    list->items = 4;
    EXPECT_TRUE(list->cell(1).performAccessibilityCustomAction(offered.front()));
    EXPECT_THAT(list->heard, ElementsAre("Mute 1", "Delete 1"));
    EXPECT_EQ(list->collection.numberOfItems(), 4);
}

TEST_F(SwipeControllerTest, AnOpenRowIsAllThatAssistiveTechnologyFindsOnItsCell) {
    EXPECT_EQ(list->cell(1).accessibilityElement(), nullptr);
    list->open(1);
    EXPECT_EQ(list->cell(1).accessibilityElement(), list->cell(1).actionsView());
    list->screenReader = true;
    EXPECT_TRUE(list->cell(3).pointInside({10, 10})) << "exploring by touch closes nothing";
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
    EXPECT_TRUE(list->cell(3).swipeController().tapGestureRecognizer()->recognize({10, 10})) << "a tap does";
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
}

TEST_F(SwipeControllerTest, APanThatIsRefusedAtItsStartMovesNothingToItsEnd) {
    list->open(1);
    list->begin(2, -100);
    list->begin(1, 100); // a second finger, on the open cell
    list->change(1, 90, 100);
    list->pan(1).end({100, 0});
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
    EXPECT_EQ(list->centerX(1), 160 - 148);
    EXPECT_EQ(list->cell(2).state(), SwipeState::Dragging);
}

TEST_F(SwipeControllerTest, ACellThatWasClosedUnderItsFingerGivesWayToTheNextOne) {
    list->open(1);
    list->begin(1, -100);
    (void)list->collection.hitTest({160, 250}); // a second finger closes it
    list->begin(2, -100);
    list->change(1, -40, -100);
    EXPECT_EQ(list->centerX(1), 160) << "it is on its way back";
    list->pan(2).end({-100, 0});
    list->pan(1).end({-100, 0});
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    EXPECT_EQ(list->cell(2).state(), SwipeState::Right);
}

TEST_F(SwipeControllerTest, AnOpenCellTakesTheWidthOfATurnedScreen) {
    list->open(1);
    list->width = 640;
    list->collection.setFrame({0, 0, 640, 300});
    list->collection.layoutIfNeeded();
    list->cell(1).layoutIfNeeded();
    list->cell(1).traitsDidChange();
    EXPECT_EQ(list->centerX(1), 320 - 148);
    EXPECT_EQ(list->cell(1).actionsView()->frame(), (ui::Rect{640, 0, 1280, 100}));
}

} // namespace
} // namespace tessivo::swipe
