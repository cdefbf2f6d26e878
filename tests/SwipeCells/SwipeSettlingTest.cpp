#include "Interface/Touch.h"
#include "SwipeCells/SwipeList.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessivo::swipe {
namespace {

using Side = SwipeActionsOrientation;

constexpr ui::DampedOver standard{Seconds(0.7), 1};

ui::Spring springOf(double velocity) {
    return {.mass = 1, .stiffness = 100, .damping = 18, .initialVelocity = velocity};
}

/// Cells of 320 points; the row of two buttons on the right is 148 wide.
class SwipeSettlingTest : public testing::Test {
protected:
    SwipeSettlingTest() { startAnew(); }

    void startAnew() {
        list = SwipeList::make();
        list->right = SwipeActions{list->action("Delete"), list->action("Edit")};
        list->left = SwipeActions{list->action("Pin")};
    }
    [[nodiscard]] double drawnCenterX() {
        return list->container(1).drawnValue(ui::AnimatableProperty::CenterX);
    }
    /// The container goes from where it is drawn to `target` by `timing`, frame by frame.
    void expectDrawn(double from, double target, const ui::Timing& timing) {
        EXPECT_DOUBLE_EQ(list->centerX(1), target);
        ui::View guide;
        guide.setAnimations(&list->animations);
        guide.setCenterX(from);
        const auto animator = ui::PropertyAnimator::make(list->animations, timing);
        animator->addAnimations([&] { guide.setCenterX(target); });
        animator->startAnimation();
        for (int frame = 0; frame < 20; ++frame) {
            ASSERT_NEAR(drawnCenterX(), guide.drawnValue(ui::AnimatableProperty::CenterX), 1e-9) << frame;
            list->line.advance(Seconds(1 / 30.0));
        }
        animator->stopAnimation(true);
    }

    std::shared_ptr<SwipeList> list;
};

TEST_F(SwipeSettlingTest, AReleasedCellIsThrownByTheFingerAsFarAsItFollowedIt) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto fill = SwipeExpansionStyle::deleteAtFill();
    const struct {
        const char* what;
        std::optional<SwipeExpansionStyle> style;
        std::vector<double> ways;
        double velocity, from, target;
        ui::Timing timing;
    } rows[] = {
        {"no speed", {}, {-100}, 0, 60, 12, standard},
        {"onwards", {}, {-100}, -200, 60, 12, springOf(-200.0 / -48)},
        {"back", {}, {-100}, 200, 60, 160, springOf(200.0 / 100)},
        {"beyond the buttons", {}, {-248}, -200, -28, 12, springOf(-200 * 0.4 / 40)},
        {"back from beyond", {}, {-248, -100}, -200, 60, 12, springOf(-200.0 / -48)},
        {"the wrong way", {}, {50}, -100, 170, 12, springOf(-100 * 0.4 / -158)},
        {"back from the wrong way", {}, {50, -100}, -200, 60, 12, springOf(-200.0 / -48)},
        {"no way at all", {}, {0}, -100, 160, 12, springOf(-100 * 0.4 / -148)},
        {"an expanding row gives no resistance", fill, {-200}, -100, -40, 12, springOf(-100.0 / 52)},
        {"from the wrong way into it", fill, {50, -200}, -100, -40, 12, springOf(-100.0 / 52)},
        {"the wrong way of it", fill, {50}, -100, 170, 12, springOf(-100 * 0.4 / -158)},
        {"in place already", {}, {-148}, -100, 12, 12, springOf(nan)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        startAnew();
        list->options.expansionStyle = row.style;
        list->begin(1, -100);
        for (const double way : row.ways)
            list->change(1, way, row.velocity);
        list->pan(1).end({row.velocity, 0});
        expectDrawn(row.from, row.target, row.timing);
    }
}

TEST_F(SwipeSettlingTest, WhatTheProgramMovesSettlesInTheStandardTime) {
    list->cell(1).showSwipe(Side::Right, true);
    expectDrawn(160, 12, standard);
    list->line.advance(Seconds(1));
    list->cell(1).setSwipeOffset(-200, true);
    expectDrawn(12, -40, standard);
    list->line.advance(Seconds(1));
    list->cell(1).hideSwipe(true);
    expectDrawn(-40, 160, standard);
    EXPECT_EQ(list->heard, std::vector<std::string>({"begin 1", "end 1"})) << "it was open for all of it";
}

TEST_F(SwipeSettlingTest, TheJumpTakesTheStandardTimeAndTheFillLess) {
    list->right->pop_back();
    list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill(false, HandlerInvocationTiming::After);
    list->begin(1, -100);
    list->change(1, -150, -100);
    list->change(1, -155, -100);
    expectDrawn(160 - 150, 160 - 290, standard);
    EXPECT_EQ(list->pan(1).translation().x, -290);
    EXPECT_EQ(list->pan(1).translation().y, 0);
    list->line.advance(Seconds(1));
    list->pan(1).end({-100, 0});
    expectDrawn(160 - 290, 160 - 320 - 74, ui::DampedOver{Seconds(0.3), 1});
}

TEST_F(SwipeSettlingTest, AFingerStopsTheCellWhereItIsDrawn) {
    list->begin(1, -100);
    list->change(1, -60, -100);
    list->pan(1).end({-100, 0});
    list->line.advance(Seconds(0.1));
    const double caught = drawnCenterX();
    ASSERT_GT(caught, 13);
    ASSERT_LT(caught, 99);
    list->begin(1, -100);
    EXPECT_EQ(list->centerX(1), caught);
    list->change(1, 5, -100);
    EXPECT_DOUBLE_EQ(list->centerX(1), caught + 5);
    EXPECT_DOUBLE_EQ(drawnCenterX(), caught + 5);
}

TEST_F(SwipeSettlingTest, CompletionsTellOfTheEndAndOfNothingElse) {
    std::vector<std::string> heard;
    const auto note = [&](const char* what) {
        return [&heard, what, this](bool finished) {
            heard.push_back(std::string(what) + (finished ? "" : " cut short") +
                            (list->cell(1).actionsView() ? ", open" : ", closed"));
        };
    };
    list->cell(1).setSwipeOffset(-100, false, note("set at once"));
    list->cell(1).setSwipeOffset(-50, true, note("replaced"));
    list->cell(1).setSwipeOffset(-60, true, note("set"));
    list->line.advance(Seconds(2));
    list->cell(1).hideSwipe(true, note("hidden"));
    EXPECT_EQ(heard, std::vector<std::string>({"set, open"}));
    list->line.advance(Seconds(2));
    list->cell(1).showSwipe(Side::Left, false);
    list->cell(1).hideSwipe(false, note("hidden at once"));
    list->line.advance(Seconds(2));
    EXPECT_EQ(heard, std::vector<std::string>({"set, open", "hidden, closed"}));
}

TEST_F(SwipeSettlingTest, ACellPutInPlaceOnItsWayBackStaysThere) {
    list->cell(1).showSwipe(Side::Right, false);
    list->cell(1).hideSwipe(true);
    list->line.advance(Seconds(0.2));
    list->cell(1).setSwipeOffset(-100, false);
    EXPECT_DOUBLE_EQ(drawnCenterX(), 60);
    list->line.advance(Seconds(2));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Right);
    EXPECT_NE(list->cell(1).actionsView(), nullptr);
    EXPECT_DOUBLE_EQ(drawnCenterX(), 60);
}

TEST_F(SwipeSettlingTest, AFingerCatchesAMovingCellWhichGoesOnWhenItHasDoneNothing) {
    for (const bool opens : {true, false}) {
        startAnew();
        auto& cell = list->cell(1);
        cell.showSwipe(Side::Right, opens);
        if (!opens)
            cell.hideSwipe(true);
        list->line.advance(Seconds(0.1));
        const double caught = drawnCenterX();
        const auto finger = ui::Touch::begin(list->collection, {20, 150}, Seconds(1));
        list->line.advance(Seconds(1));
        EXPECT_DOUBLE_EQ(drawnCenterX(), caught);
        finger->cancel();
        list->line.advance(Seconds(2));
        EXPECT_DOUBLE_EQ(drawnCenterX(), opens ? 12 : 160);
        EXPECT_EQ(cell.state(), opens ? SwipeState::Right : SwipeState::Center);
        EXPECT_EQ(cell.actionsView() != nullptr, opens);
    }
}

TEST_F(SwipeSettlingTest, AFlickBackClosesAndTheFirstMoveAfterARestOpensItsOwnSide) {
    Seconds time{1};
    auto finger = ui::Touch::begin(list->collection, {300, 150}, time);
    const auto moveTo = [&](double x, double after) { finger->moveTo({x, 150}, time += Seconds(after)); };
    for (double x = 296; x > 180; x -= 4)
        moveTo(x, 0.008);
    for (const double x : {184, 190, 196, 202})
        moveTo(x, 0.008);
    finger->release(time);
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Center);
    finger = ui::Touch::begin(list->collection, {100, 150}, time);
    moveTo(115, 0.6);
    moveTo(160, 0.016);
    finger->release(time += Seconds(0.2));
    list->line.advance(Seconds(3));
    EXPECT_EQ(list->cell(1).state(), SwipeState::Left);
}

TEST_F(SwipeSettlingTest, TheFirstTouchBesideAnOpenRowIsTakenByAnyCell) {
    for (const int item : {2, 4}) {
        startAnew();
        list->cell(0).showSwipe(Side::Right, false);
        Seconds time{1};
        const double y = item * 100 + 50;
        const auto finger = ui::Touch::begin(list->collection, {300, y}, time);
        EXPECT_EQ(list->cell(0).state(), SwipeState::AnimatingToCenter);
        for (double x = 280; x > 200; x -= 20)
            finger->moveTo({x, y}, time += Seconds(0.016));
        EXPECT_EQ(list->cell(item).state(), SwipeState::Dragging) << item;
    }
}

TEST_F(SwipeSettlingTest, ScrollingByWheelOrKeysClosesAndANewSizeSettlesAnew) {
    list->cell(1).showSwipe(Side::Right, false);
    list->width = 400;
    list->collection.setFrame({0, 0, 400, 600});
    list->collection.layoutIfNeeded();
    EXPECT_DOUBLE_EQ(list->centerX(1), 200 - 148);
    list->collection.closeOpenCells();
    EXPECT_EQ(list->cell(1).state(), SwipeState::AnimatingToCenter);
}

TEST_F(SwipeSettlingTest, TheFirstFrameAfterAReleaseMoves) {
    list->begin(1, -100);
    list->change(1, -60, -100);
    list->line.advance(Seconds(1));
    list->pan(1).end({-600, 0});
    list->line.advance(Seconds(1.01 / 60));
    EXPECT_LT(drawnCenterX(), 95);
}

TEST_F(SwipeSettlingTest, TheContainerGivesWayFreelyUpToTheLimitAndByTheRatioBeyond) {
    const struct {
        double center, way, limit, ratio, moved;
    } rows[] = {
        {160, -74, 74, 0.4, 86}, {160, -73.5, 74, 0.4, 86.5}, {160, -84, 74, 0.4, 82},
        {160, 84, 74, 0.4, 238}, {12, -10, 148, 0.4, 8},      {12, 400, 148, 0.2, 328.8},
        {160, 0, 0, 0.2, 160},   {160, 10, 0, 0.2, 162},      {160, -10, 0, 0.2, 158},
        {170, -10, 0, 0.2, 160}, {160, 50, 40, 0, 200},       {160, 50, 40, 1, 210},
    };
    auto& pan = list->pan(1);
    list->begin(1, -100);
    ui::PanGestureRecognizer stray;
    (void)stray.begin({}, {7, 0}, {});
    for (const auto& row : rows) {
        pan.change({}, {row.way, 0}, {});
        EXPECT_NEAR(SwipeController::elasticTranslation(pan, row.center, row.limit, row.ratio), row.moved,
                    1e-9)
            << row.center << " " << row.way;
    }
    pan.change({}, {10, 0}, {});
    EXPECT_EQ(SwipeController::elasticTranslation(pan, 160, 0), 162);
    EXPECT_EQ(SwipeController::elasticTranslation(stray, 160, 0, 0.2), 7) << "on no view";
}

} // namespace
} // namespace tessivo::swipe
