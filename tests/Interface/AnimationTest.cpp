#include "Interface/Animation.h"

#include "Interface/View.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <set>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AnimationTest : public testing::Test {
protected:
    AnimationTest() {
        root.setAnimations(&animations);
        root.addSubview(view);
    }

    /// Moves the view's centre to `x` along a curve.
    std::shared_ptr<PropertyAnimator> moveTo(double x, Timing timing) {
        auto animator = PropertyAnimator::make(animations, timing);
        animator->addAnimations([this, x] { view.setCenterX(x); });
        animator->addCompletion([this](AnimatingPosition position) { ends.push_back(position); });
        animator->startAnimation();
        return animator;
    }

    [[nodiscard]] double drawnX() const { return view.drawnValue(AnimatableProperty::CenterX); }

    fakes::Timeline line;
    Animations animations{line, line};
    View root;
    View view;
    std::vector<AnimatingPosition> ends;
};

TEST_F(AnimationTest, TheModelMovesAtOnceAndTheDrawingFollowsToItsEnd) {
    moveTo(100, EaseInOut{Seconds(0.3)});
    EXPECT_EQ(view.center().x, 100);
    EXPECT_EQ(drawnX(), 0);
    line.advance(Seconds(0.15));
    EXPECT_GT(drawnX(), 20);
    EXPECT_LT(drawnX(), 80);
    EXPECT_THAT(ends, IsEmpty());
    line.advance(Seconds(0.2));
    EXPECT_EQ(drawnX(), 100);
    EXPECT_THAT(ends, ElementsAre(AnimatingPosition::End));
    EXPECT_FALSE(line.framesAreAskedFor()) << "a still screen costs nothing";
}

TEST_F(AnimationTest, ASpringFollowsItsEquationAtEveryFrameRate) {
    // x" = stiffness (1 - x) - damping x' for a mass of 1, stepped far finer than any screen.
    const auto exact = [](double velocity, double time) {
        constexpr double step = 1e-5;
        double x = 0;
        double v = velocity;
        for (double at = 0; at < time - step / 2; at += step) {
            const double middle = v + step / 2 * (100 * (1 - x) - 18 * v);
            x += step * middle;
            v += step * (100 * (1 - x + step / 2 * middle) - 18 * middle);
        }
        return x;
    };
    for (const double velocity : {0.0, 4.0, -3.0, 30.0}) {
        for (const double rate : {60.0, 90.0, 120.0}) {
            line.setFrameInterval(Seconds(1 / rate));
            view.setCenterX(0);
            moveTo(200, Spring{1, 100, 18, velocity});
            for (const int frame : {1, 6, 15, 30}) {
                const double before = static_cast<double>(frame) / rate;
                line.advance(Seconds(before + 1.5 / rate));
                // The first frame already shows the motion since the frame before it.
                const double first = 1.0 / 60;
                const double elapsed =
                    std::floor((before + 1.5 / rate) * rate + 1e-6) / rate - 1 / rate + first;
                EXPECT_NEAR(drawnX(), 200 * exact(velocity, elapsed), 0.15) << velocity << " at " << rate;
                line.advance(Seconds(60));
                view.setCenterX(0);
                moveTo(200, Spring{1, 100, 18, velocity});
            }
            line.advance(Seconds(60));
            EXPECT_EQ(drawnX(), 200);
        }
    }
}

TEST_F(AnimationTest, EveryCurveStartsAtItsStartAndArrivesForGood) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Timing curves[] = {EaseInOut{Seconds(0.3)},       DampedOver{Seconds(0.7), 1},
                             DampedOver{Seconds(0.7), 0.5}, Spring{1, 100, 18, 0},
                             Spring{1, 100, 20, 5},         Spring{1, 100, 40, -5},
                             Spring{1, 100, 18, infinity},  Spring{1, 100, 18, std::nan("")}};
    for (const Timing& curve : curves) {
        EXPECT_EQ(fractionDone(curve, Seconds(0)), 0);
        const Seconds length = lengthOf(curve);
        EXPECT_TRUE(std::isfinite(length.count()));
        EXPECT_NEAR(fractionDone(curve, length * 0.999), 1, 0.01) << "it does not jump at its end";
        EXPECT_EQ(fractionDone(curve, length), 1);
    }
    EXPECT_NEAR(lengthOf(DampedOver{Seconds(0.7), 1}).count(), 0.7, 1e-9);
}

TEST_F(AnimationTest, StoppingLeavesTheModelWhereItIsDrawn) {
    const auto animator = moveTo(100, DampedOver{Seconds(0.7), 1});
    line.advance(Seconds(0.1));
    const double drawn = drawnX();
    ASSERT_GT(drawn, 0);
    ASSERT_LT(drawn, 100);
    animator->stopAnimation(true);
    EXPECT_EQ(view.center().x, drawn);
    EXPECT_EQ(drawnX(), drawn);
    EXPECT_THAT(ends, IsEmpty());
    EXPECT_FALSE(animator->isRunning());
    line.advance(Seconds(2));
    EXPECT_EQ(drawnX(), drawn);
}

TEST_F(AnimationTest, StoppingWithFinishingTellsWhereItStopped) {
    const auto animator = moveTo(100, EaseInOut{Seconds(1)});
    line.advance(Seconds(0.5));
    animator->stopAnimation(false);
    EXPECT_THAT(ends, ElementsAre(AnimatingPosition::Current));
}

TEST_F(AnimationTest, ANewAnimationGoesOnFromWhatIsDrawn) {
    moveTo(100, EaseInOut{Seconds(0.4)});
    line.advance(Seconds(0.2));
    const double before = drawnX();
    moveTo(0, EaseInOut{Seconds(0.4)});
    EXPECT_NEAR(drawnX(), before, 1e-9) << "nothing jumps";
    line.advance(Seconds(1));
    EXPECT_EQ(drawnX(), 0);
    EXPECT_EQ(ends.size(), 2U);
}

TEST_F(AnimationTest, AChangeOutsideAnyBlockMovesTheDrawingWithTheModel) {
    moveTo(100, EaseInOut{Seconds(0.4)});
    line.advance(Seconds(0.2));
    const double before = drawnX();
    view.setCenterX(150);
    EXPECT_NEAR(drawnX(), before + 50, 1e-9);
    line.advance(Seconds(1));
    EXPECT_EQ(drawnX(), 150);
}

TEST_F(AnimationTest, ADelayedStartRunsItsBlockLater) {
    const auto animator = PropertyAnimator::make(animations, EaseInOut{Seconds(0.2)});
    animator->addAnimations([this] { view.setCenterX(100); });
    animator->startAnimation(Seconds(1));
    EXPECT_TRUE(animator->isRunning());
    line.advance(Seconds(0.9));
    EXPECT_EQ(view.center().x, 0);
    line.advance(Seconds(0.2));
    EXPECT_EQ(view.center().x, 100);
    line.advance(Seconds(1));
    EXPECT_EQ(drawnX(), 100);
    EXPECT_EQ(line.pending(), 0U);
}

TEST_F(AnimationTest, AStopBeforeADelayedStartChangesNothing) {
    const auto animator = PropertyAnimator::make(animations, EaseInOut{Seconds(0.2)});
    animator->addAnimations([this] { view.setCenterX(100); });
    animator->startAnimation(Seconds(1));
    animator->stopAnimation(true);
    line.advance(Seconds(5));
    EXPECT_EQ(view.center().x, 0);
}

TEST_F(AnimationTest, LayoutInABlockAnimatesWhatItMoves) {
    class Row final : public View {
    public:
        View child;
        Row() { addSubview(child); }

    protected:
        void layoutSubviews() override { child.setFrame({bounds().width, 0, 10, 10}); }
    };
    Row row;
    root.addSubview(row);
    row.layoutIfNeeded();
    const auto animator = PropertyAnimator::make(animations, EaseInOut{Seconds(0.2)});
    animator->addAnimations([&] {
        row.setFrame({0, 0, 80, 10});
        row.layoutIfNeeded();
    });
    animator->startAnimation();
    EXPECT_EQ(row.child.frame().x, 80);
    EXPECT_NEAR(row.child.drawnFrame().x, 0, 1e-9);
    line.advance(Seconds(1));
    EXPECT_NEAR(row.child.drawnFrame().x, 80, 1e-9);
}

TEST_F(AnimationTest, AViewMayGoWhileItMoves) {
    auto passing = std::make_unique<View>();
    root.addSubview(*passing);
    const auto animator = PropertyAnimator::make(animations, EaseInOut{Seconds(0.3)});
    animator->addAnimations([&] { passing->setAlpha(0); });
    animator->addCompletion([this](AnimatingPosition position) { ends.push_back(position); });
    animator->startAnimation();
    line.advance(Seconds(0.1));
    passing.reset();
    line.advance(Seconds(1));
    EXPECT_THAT(ends, ElementsAre(AnimatingPosition::End));
}

TEST_F(AnimationTest, ReducedMotionIsThereInOneFrame) {
    animations.setReducedMotion(true);
    moveTo(100, EaseInOut{Seconds(3)});
    line.advance(Seconds(0.02));
    EXPECT_EQ(drawnX(), 100);
    EXPECT_THAT(ends, ElementsAre(AnimatingPosition::End));
}

TEST_F(AnimationTest, EachFrameIsToldAsWhatItChanges) {
    std::set<ViewChange> told;
    const auto subscription = view.onChange([&](ViewChange change) { told.insert(change); });
    moveTo(50, EaseInOut{Seconds(0.3)});
    line.advance(Seconds(1));
    EXPECT_THAT(told, ElementsAre(ViewChange::Geometry));
    const auto fade = PropertyAnimator::make(animations, EaseInOut{Seconds(0.3)});
    fade->addAnimations([this] { view.setAlpha(0); });
    fade->startAnimation();
    told.clear();
    line.advance(Seconds(0.1));
    EXPECT_THAT(told, ElementsAre(ViewChange::Appearance));
}

TEST_F(AnimationTest, AViewInNoScreenDoesNotAnimate) {
    View loose;
    const auto animator = PropertyAnimator::make(animations, EaseInOut{Seconds(3)});
    animator->addAnimations([&] { loose.setCenterX(100); });
    animator->startAnimation();
    EXPECT_EQ(loose.drawnValue(AnimatableProperty::CenterX), 100);
}

} // namespace
} // namespace tessivo::ui
