#include "SwipeCells/SwipeExpansionStyle.h"

#include "SwipeCells/SwipeList.h"
#include "SwipeCells/SwipeTable.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessivo::swipe {
namespace {

using Style = SwipeExpansionStyle;
using Side = SwipeActionsOrientation;

Style styleOf(Style::Target target, std::vector<Style::Trigger> triggers = {}) {
    return {target, std::move(triggers), false, Style::Bounce{}};
}

template <class Owner>
void openRow(Owner& owner, Side side, std::size_t buttons, double buttonWidth) {
    SwipeActions actions;
    while (actions.size() < buttons)
        actions.push_back(owner.action("A"));
    (side == Side::Left ? owner.left : owner.right) = actions;
    owner.options.minimumButtonWidth = buttonWidth;
    owner.begin(1, side == Side::Left ? 100 : -100);
}

TEST(SwipeExpansionStyleTest, ItStopsWhereTheTargetSaysButBeyondTheButtons) {
    const struct {
        double width;
        std::size_t buttons;
        double buttonWidth, safeMargin;
        Style::Target target;
        double stop;
    } rows[] = {{320, 1, 74, 0, Style::Percentage{0.5}, 160},  {320, 1, 74, 0, Style::Percentage{0.2}, 94},
                {320, 2, 80, 0, Style::Percentage{0.5}, 180},  {712, 3, 68, 0, Style::Percentage{0.5}, 356},
                {320, 1, 74, 0, Style::EdgeInset{30}, 290},    {320, 1, 74, 0, Style::EdgeInset{300}, 94},
                {320, 1, 74, 40, Style::Percentage{0.2}, 134}, {712, 3, 68, 0, Style::EdgeInset{30}, 682}};
    for (const auto& row : rows) {
        const auto list = SwipeList::make(row.width);
        list->collection.setSafeAreaInsets({0, 7, 0, row.safeMargin});
        openRow(*list, Side::Right, row.buttons, row.buttonWidth);
        EXPECT_DOUBLE_EQ(styleOf(row.target).stopOffset(list->cell(1)), row.stop)
            << row.width << " " << row.buttons;
        EXPECT_EQ(styleOf(row.target).stopOffset(list->cell(2)), std::numeric_limits<double>::max());
    }
}

TEST(SwipeExpansionStyleTest, ExpandedIsStrictlyPastEachMark) {
    const Style half = styleOf(Style::Percentage{0.5});
    const Style fill = styleOf(Style::EdgeInset{30}, {Style::TouchThreshold{0.8}});
    const Style late = styleOf(Style::EdgeInset{30}, {Style::Overscroll{5}, Style::TouchThreshold{0.5}});
    const struct {
        const char* what;
        double width;
        Side side;
        const Style& style;
        double moved, translation, finger;
        bool expanded;
    } rows[] = {
        {"at the target", 320, Side::Right, half, 160, -160, 10, false},
        {"a fraction past it does not count", 320, Side::Right, half, 160.9, -160.9, 10, false},
        {"a point past it", 320, Side::Right, half, 161, -161, 10, true},
        {"to the other side", 320, Side::Left, half, 161, 161, 300, true},
        {"a wide cell before its half", 712, Side::Right, half, 200, -200, 300, false},
        {"a wide cell past it", 712, Side::Left, half, 357, 357, 600, true},
        {"eight points of finger", 320, Side::Right, half, 161, -8, 10, false},
        {"eight points back", 320, Side::Right, half, 161, 8, 10, false},
        {"more than eight", 320, Side::Right, half, 161, -8.5, 10, true},
        {"at the buttons' width", 320, Side::Right, fill, 74, -74, 10, false},
        {"finger at the threshold", 320, Side::Right, fill, 75, -75, 64, false},
        {"finger past it", 320, Side::Right, fill, 75, -75, 63, true},
        {"finger at the left threshold", 320, Side::Left, fill, 75, 75, 256, false},
        {"finger past the left threshold", 320, Side::Left, fill, 75, 75, 257, true},
        {"threshold of a wide cell", 640, Side::Left, fill, 75, 75, 257, false},
        {"past that of a wide cell", 640, Side::Left, fill, 75, 75, 513, true},
        {"a later trigger", 320, Side::Right, late, 75, -75, 100, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto list = SwipeList::make(row.width);
        openRow(*list, row.side, 1, 74);
        auto& cell = list->cell(1);
        list->pan(1).change({row.finger, 50}, {row.translation, 0}, {0, 0});
        cell.contentView.setCenterX(row.width / 2 - offsetSign(row.side) * row.moved);
        EXPECT_EQ(
            row.style.isPastExpansionPoint(cell, list->pan(1), list->collection, cell.contentView.frame()),
            row.expanded);
    }
}

TEST(SwipeExpansionStyleTest, OverscrollIsThatOfTheCellItself) {
    const Style style = SwipeExpansionStyle::plainFill();
    for (const auto& [moved, expanded] : {std::pair(104.0, false), {104.5, true}, {291.0, true}}) {
        const auto owner = SwipeTable::make();
        openRow(*owner, Side::Right, 1, 74);
        auto& cell = owner->cell(1);
        owner->pan(1).change({160, 50}, {-moved, 0}, {0, 0});
        cell.setCenterX(160 - moved);
        EXPECT_EQ(style.isPastExpansionPoint(cell, owner->pan(1), owner->table, std::nullopt), expanded)
            << moved;
    }
    // The cell of a collection stays in its place, only its content moves.
    const auto list = SwipeList::make();
    openRow(*list, Side::Right, 1, 74);
    list->pan(1).change({160, 50}, {-200, 0}, {0, 0});
    list->cell(1).contentView.setCenterX(160 - 200);
    EXPECT_FALSE(style.isPastExpansionPoint(list->cell(1), list->pan(1), list->collection,
                                            list->cell(1).contentView.frame()));
}

TEST(SwipeExpansionStyleTest, AThresholdIsACrossingOfTheListWhereTheCellItselfMoves) {
    const auto owner = SwipeTable::make();
    owner->options.expansionStyle = SwipeExpansionStyle::deleteAtFill();
    openRow(*owner, Side::Right, 1, 74);
    owner->change(1, -150, -100);
    EXPECT_FALSE(owner->cell(1).actionsView()->expanded()) << "asked before the move";
    owner->change(1, -155, -100);
    EXPECT_TRUE(owner->cell(1).actionsView()->expanded());
}

TEST(SwipeExpansionStyleTest, AtItsTargetARowExpandsWithoutAJump) {
    for (const double way : {-289.0, -290.0}) {
        const auto list = SwipeList::make();
        list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill();
        openRow(*list, Side::Right, 1, 74);
        list->change(1, -120, -100);
        list->change(1, way, -100);
        EXPECT_TRUE(list->cell(1).actionsView()->expanded());
        EXPECT_EQ(list->cell(1).swipeController().isSettling(), way > -290);
        EXPECT_EQ(list->centerX(1), 160 - 290);
    }
}

TEST(SwipeExpansionStyleTest, ReadyMadeStylesAreWhatTheirNamesSay) {
    using With = HandlerInvocationTiming;
    const struct {
        Style style;
        bool half, elastic, bounces, deletes;
        With timing;
        std::optional<double> threshold, overscroll;
    } rows[] = {{Style::bounceAtHalf(), true, true, true, false, {}, {}, {}},
                {Style::deleteAtFill(), false, false, false, true, With::With, 0.8, {}},
                {Style::deleteAfterFill(), false, false, false, true, With::After, 0.8, {}},
                {Style::deleteAtFill(false, With::With), false, false, false, false, With::With, 0.8, {}},
                {Style::deleteAtFill(true, With::After), false, false, false, true, With::After, 0.8, {}},
                {Style::plainFill(), false, false, false, false, With::After, {}, 30}};
    for (const auto& [style, half, elastic, bounces, deletes, timing, threshold, overscroll] : rows) {
        SCOPED_TRACE(&style - &rows[0].style);
        const auto* percentage = std::get_if<Style::Percentage>(&style.target);
        ASSERT_EQ(percentage != nullptr, half);
        EXPECT_EQ(percentage ? percentage->ratio : std::get<Style::EdgeInset>(style.target).distance,
                  half ? 0.5 : 30);
        EXPECT_EQ(style.elasticOverscroll, elastic);
        const auto* fill = std::get_if<Style::FillOptions>(&style.completionAnimation);
        ASSERT_EQ(fill == nullptr, bounces);
        if (fill) {
            EXPECT_EQ(fill->autoFulFillmentStyle == ExpansionFulfillmentStyle::Delete, deletes);
            EXPECT_EQ(fill->timing, timing);
        }
        ASSERT_EQ(style.additionalTriggers.size(), threshold || overscroll ? 1U : 0U);
        if (threshold) {
            EXPECT_EQ(std::get<Style::TouchThreshold>(style.additionalTriggers[0]).ratio, *threshold);
        }
        if (overscroll) {
            EXPECT_EQ(std::get<Style::Overscroll>(style.additionalTriggers[0]).distance, *overscroll);
        }
    }
}

TEST(SwipeExpansionStyleTest, WithoutARowOrAViewNothingExpands) {
    const auto list = SwipeList::make();
    const Style style = styleOf(Style::Percentage{0});
    EXPECT_FALSE(style.isPastExpansionPoint(list->cell(1), list->pan(1), list->collection,
                                            ui::Rect{-300, 0, 320, 100}));
    openRow(*list, Side::Right, 1, 74);
    ui::PanGestureRecognizer stray;
    EXPECT_FALSE(
        style.isPastExpansionPoint(list->cell(1), stray, list->collection, ui::Rect{-300, 0, 320, 100}));
}

TEST(SwipeExpansionStyleTest, TheRowFeelsEachChangeOfADragOnce) {
    const auto list = SwipeList::make();
    list->options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
    openRow(*list, Side::Right, 1, 74);
    for (const double way : {-170.0, -180.0, -20.0, -10.0, -200.0, -210.0})
        list->change(1, way, -100);
    EXPECT_EQ(list->impacts.acts, "pipipip") << "made ready with the row, and after each";
}

} // namespace
} // namespace tessivo::swipe
