#include "SelectValueVC/HalfScreen.h"

#include "fakes/Timeline.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

constexpr ui::Rect lowerHalf{0, 400, 390, 400};
constexpr ui::Rect below{0, 800, 390, 400};

class HalfScreenTest : public testing::Test {
protected:
    HalfScreenTest() {
        container.setFrame({0, 0, 390, 800});
        container.setAnimations(&animations);
    }

    fakes::Timeline line;
    ui::Animations animations{line, line};
    ui::View container;
    ui::View panel;
};

TEST_F(HalfScreenTest, ThePanelTakesTheLowerHalfAndLeavesIt) {
    auto panelIn = HalfScreenTransitioningDelegate::presentationController(panel, &container);
    panelIn.presentationTransitionWillBegin(nullptr);
    EXPECT_EQ(panel.frame(), lowerHalf);
    EXPECT_EQ(panel.superview(), &container);
    EXPECT_EQ(panel.alpha(), 1);
    EXPECT_EQ(panel.cornerRadius(), 16);
    EXPECT_TRUE(panel.clipsToBounds());

    panelIn.dismissalTransitionDidEnd(false);
    EXPECT_EQ(panel.superview(), &container);
    panelIn.dismissalTransitionWillBegin(nullptr);
    EXPECT_EQ(panel.frame(), below);
    EXPECT_EQ(panel.alpha(), 0);
    panelIn.dismissalTransitionDidEnd(true);
    EXPECT_EQ(panel.superview(), nullptr);
}

TEST_F(HalfScreenTest, AlongsideATransitionItStartsBelowAndTransparent) {
    const auto coordinator = ui::PropertyAnimator::make(animations, ui::EaseInOut{Seconds(0.3)});
    HalfScreenPresentationController(panel, &container).presentationTransitionWillBegin(coordinator.get());
    EXPECT_EQ(panel.frame(), below);
    EXPECT_EQ(panel.alpha(), 0);
    coordinator->startAnimation();
    EXPECT_EQ(panel.frame(), lowerHalf);
    EXPECT_EQ(panel.alpha(), 1);
}

TEST_F(HalfScreenTest, WithoutAContainerThereIsNoFrame) {
    EXPECT_EQ(HalfScreenPresentationController(panel, nullptr).frameOfPresentedViewInContainerView(),
              ui::Rect{});
}

TEST_F(HalfScreenTest, TheTransitionSlidesByOneHeightAndReportsItsEnd) {
    panel.setFrame(lowerHalf);
    for (const bool isPresentation : {true, false}) {
        int ends = 0;
        ui::View other;
        HalfScreenTransitionAnimator(animations, isPresentation)
            .animateTransition({isPresentation ? other : panel, isPresentation ? panel : other,
                                [&] { ++ends; }, &container});
        EXPECT_EQ(panel.superview(), &container);
        line.advance(Seconds(0.25));
        EXPECT_EQ(ends, 0);
        line.advance(Seconds(0.1));
        EXPECT_EQ(ends, 1);
        EXPECT_EQ(panel.frame(), isPresentation ? lowerHalf : below);
    }
}

} // namespace
} // namespace tessivo
