#include "SwipeCells/SwipeTransitionLayout.h"

#include "Interface/Animation.h"
#include "Interface/Button.h"
#include "SwipeCells/ScaleAndAlphaExpansion.h"
#include "SwipeCells/ScaleTransition.h"
#include "SwipeCells/SwipeList.h"

#include <gmock/gmock.h>

#include <array>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using Side = SwipeActionsOrientation;
using Style = SwipeTransitionStyle;

TEST(SwipeTransitionLayoutTest, EveryStylePlacesThreeButtonsOfEighty) {
    const struct {
        const char* what;
        Style style;
        Side side;
        double content, visible, boundsX;
        std::array<double, 3> x, seen;
    } rows[] = {
        {"border, whole", Style::Border, Side::Right, 240, 240, 0, {0, 80, 160}, {80, 80, 80}},
        {"border, whole, left", Style::Border, Side::Left, 240, 240, 0, {0, -80, -160}, {80, 80, 80}},
        {"border, part", Style::Border, Side::Right, 90, 90, 0, {0, 30, 60}, {30, 30, 30}},
        {"border, stretched", Style::Border, Side::Right, 255, 300, 0, {45, 130, 215}, {130, 130, 130}},
        {"border, stretched, left",
         Style::Border,
         Side::Left,
         255,
         300,
         0,
         {-45, -130, -215},
         {130, 130, 130}},
        {"border, none seen", Style::Border, Side::Right, 240, 0, 0, {-240, -160, -80}, {-160, -160, -160}},
        {"drag, part", Style::Drag, Side::Right, 100, 100, 0, {0, 80, 160}, {80, 20, 0}},
        {"drag, stretched", Style::Drag, Side::Right, 255, 300, -45, {0, 80, 160}, {80, 80, 80}},
        {"drag, stretched, left", Style::Drag, Side::Left, 255, 300, 45, {0, -80, -160}, {80, 80, 80}},
        {"drag, none seen", Style::Drag, Side::Right, 0, 0, 0, {0, 80, 160}, {0, 0, 0}},
        {"reveal, part", Style::Reveal, Side::Right, 100, 100, 140, {0, 80, 160}, {0, 20, 80}},
        {"reveal, part, left", Style::Reveal, Side::Left, 100, 100, -140, {0, -80, -160}, {0, 20, 80}},
        {"reveal, beyond", Style::Reveal, Side::Right, 300, 300, -60, {0, 80, 160}, {80, 80, 80}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto layout = makeTransitionLayout(row.style);
        const ActionsViewLayoutContext context{3, row.side, {row.content, 100}, row.visible, 80};
        ui::View container, button;
        container.setFrame({0, 0, 640, 100});
        layout->visibleWidthChanged(container, context);
        EXPECT_DOUBLE_EQ(container.bounds().x, row.boundsX);
        std::array<double, 3> seen{};
        layout->visibleButtonWidths(context, seen);
        EXPECT_THAT(seen, testing::Pointwise(testing::DoubleEq(), row.seen));
        for (int index = 0; index < 3; ++index) {
            button.setFrame({7, 3, 640, 90});
            layout->layoutSubview(button, index, context);
            EXPECT_EQ(button.frame(), (ui::Rect{row.x[static_cast<std::size_t>(index)], 3, 640, 90}))
                << index;
        }
    }
}

/// Records the progress of its button.
class NotingTransition final : public SwipeActionTransitioning {
public:
    void didTransition(const SwipeActionTransitioningContext& context) const override {
        heard.push_back({context.oldPercentVisible, context.newPercentVisible});
        EXPECT_EQ(context.actionIdentifier, "tag");
        EXPECT_EQ(context.button.superview(), &context.wrapperView);
    }
    mutable std::vector<std::pair<double, double>> heard;
};

TEST(SwipeTransitionLayoutTest, OnlyButtonsWhoseShareChangesHearOfItInALaterTurn) {
    const auto list = SwipeList::make();
    list->right = SwipeActions{list->action("A"), list->action("B")};
    const auto near = std::make_shared<NotingTransition>();
    const auto far = std::make_shared<NotingTransition>();
    list->right->back()->transitionDelegate = near;
    list->right->front()->transitionDelegate = far;
    list->right->back()->identifier = list->right->front()->identifier = "tag";
    list->options.transitionStyle = Style::Drag;
    list->options.minimumButtonWidth = 80;
    list->begin(1, -100);
    list->change(1, -40, -100);
    EXPECT_THAT(near->heard, testing::IsEmpty());
    list->line.advance(Seconds(0));
    list->change(1, -100, -100);
    list->change(1, -100, -100);
    list->line.advance(Seconds(0));
    EXPECT_THAT(near->heard, ElementsAre(std::pair(0.0, 0.5), std::pair(0.5, 1.0)));
    EXPECT_THAT(far->heard, ElementsAre(std::pair(0.0, 0.25)));
}

class MovingButtonsTest : public testing::Test {
protected:
    MovingButtonsTest() {
        root.setAnimations(&animations);
        for (auto& button : buttons)
            root.addSubview(button);
    }
    [[nodiscard]] double drawnScale(std::size_t index) {
        return buttons[index].drawnValue(ui::AnimatableProperty::Scale);
    }
    [[nodiscard]] double drawnAlpha(std::size_t index) {
        return buttons[index].drawnValue(ui::AnimatableProperty::Alpha);
    }

    fakes::Timeline line;
    ui::Animations animations{line, line};
    ui::View root;
    std::array<ui::Button, 3> buttons;
};

TEST_F(MovingButtonsTest, AScaleTransitionGrowsAtItsThresholdAndShrinksBelowIt) {
    const struct {
        double before, after, scaleBefore, scaleAtOnce, scaleAfterwards;
    } rows[] = {
        {0, 0.3, 1, 0.8, 0.8},  {0, 0.5, 1, 0.8, 1}, {0.4, 0.5, 0.8, 0.8, 1}, {0.2, 0.49, 0.8, 0.8, 0.8},
        {0.5, 0.49, 1, 1, 0.8}, {0.6, 0.5, 1, 1, 1}, {0.9, 0, 1, 1, 0.8},     {0.5, 1, 1, 1, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.before << " to " << row.after);
        buttons[0].setScale(row.scaleBefore);
        ScaleTransition().didTransition({{}, buttons[0], row.after, row.before, root, animations});
        EXPECT_DOUBLE_EQ(drawnScale(0), row.scaleAtOnce);
        line.advance(Seconds(0.09)); // its first frame is the start
        EXPECT_NEAR(drawnScale(0), (row.scaleAtOnce + row.scaleAfterwards) / 2, 0.06);
        line.advance(Seconds(0.15));
        EXPECT_DOUBLE_EQ(drawnScale(0), row.scaleAfterwards);
        EXPECT_FALSE(line.framesAreAskedFor());
    }
}

TEST_F(MovingButtonsTest, TheOtherButtonsLeaveOneAfterTheOtherAndComeBackInReverse) {
    const ScaleAndAlphaExpansion expansion;
    std::array<ui::Button*, 2> others{&buttons[1], &buttons[0]}; // the nearest to the expanding one first
    EXPECT_EQ(expansion.timingParameters(others, true).duration, Seconds(0.6));
    EXPECT_EQ(expansion.timingParameters(others, true).delay, Seconds(0.1));
    EXPECT_EQ(expansion.timingParameters(others, false).delay, Seconds(0));
    expansion.buttonDidChange(animations, buttons[2], true, others);
    line.advance(Seconds(0.09)); // the first goes at once, the second after a tenth of a second
    EXPECT_LT(drawnAlpha(1), 0.7);
    EXPECT_EQ(drawnAlpha(0), 1);
    line.advance(Seconds(0.3));
    for (const std::size_t index : {0, 1}) {
        EXPECT_EQ(drawnAlpha(index), 0);
        EXPECT_EQ(drawnScale(index), 0.8);
    }
    expansion.buttonDidChange(animations, buttons[2], false, others);
    line.advance(Seconds(0.09)); // each waits one tenth more
    EXPECT_EQ(drawnAlpha(0), 0);
    line.advance(Seconds(0.1));
    EXPECT_GT(drawnAlpha(0), 0.1);
    EXPECT_EQ(drawnAlpha(1), 0);
    line.advance(Seconds(0.3));
    for (const std::size_t index : {0, 1}) {
        EXPECT_EQ(drawnAlpha(index), 1);
        EXPECT_EQ(drawnScale(index), 1);
    }
    EXPECT_EQ(drawnAlpha(2), 1) << "the expanding button is not touched";
}

} // namespace
} // namespace tessivo::swipe
