#include "SwipeCells/SwipeList.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace tessivo::swipe {
namespace {

std::string nameOf(SwipeState state) {
    switch (state) {
    case SwipeState::Center:
        return "center";
    case SwipeState::Left:
        return "left";
    case SwipeState::Right:
        return "right";
    case SwipeState::Dragging:
        return "dragging";
    case SwipeState::AnimatingToCenter:
        return "animatingToCenter";
    }
    return {};
}

std::shared_ptr<SwipeList> listFor(std::istringstream& words) {
    std::string side, layout, style;
    double width = 0, button = 0;
    int count = 0;
    words >> side >> layout >> style >> width >> count >> button;
    auto list = SwipeList::make(width);
    SwipeActions actions;
    for (int number = 0; number < count; ++number)
        actions.push_back(list->action("A"));
    (side == "left" ? list->left : list->right) = actions;
    list->options.minimumButtonWidth = button;
    list->options.transitionStyle = layout == "border" ? SwipeTransitionStyle::Border
                                    : layout == "drag" ? SwipeTransitionStyle::Drag
                                                       : SwipeTransitionStyle::Reveal;
    if (style == "bounce")
        list->options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
    if (style == "fill")
        list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill();
    return list;
}

void expectStep(SwipeList& list, std::istringstream& words) {
    double center = 0, visible = 0, x = 0;
    bool expanded = false;
    std::string state;
    words >> center >> visible >> state >> expanded;
    auto& cell = list.cell(1);
    EXPECT_NEAR(list.centerX(1), center, 1e-5);
    EXPECT_EQ(nameOf(cell.state()), state);
    if (state == "center") {
        EXPECT_EQ(cell.actionsView(), nullptr);
        return;
    }
    ASSERT_NE(cell.actionsView(), nullptr);
    EXPECT_NEAR(cell.actionsView()->visibleWidth(), visible, 1e-5);
    EXPECT_EQ(cell.actionsView()->expanded(), expanded);
    for (const ui::View* ground : cell.actionsView()->subviews()) {
        words >> x;
        EXPECT_NEAR(ground->frame().x, x, 1e-5);
    }
}

TEST(PanTraceTest, EveryStepShowsWhatTheFormulasSay) {
    std::ifstream table(SWIPE_TRACES);
    std::shared_ptr<SwipeList> list;
    std::string line, title;
    int steps = 0;
    while (std::getline(table, line)) {
        std::istringstream words(line);
        std::string kind;
        words >> kind;
        if (kind == "case") {
            title = line;
            list = listFor(words);
            continue;
        }
        SCOPED_TRACE(title + "\n" + line);
        double translation = 0, velocity = 0;
        words >> translation >> velocity;
        if (kind == "begin") {
            ASSERT_TRUE(list->begin(1, velocity));
            continue;
        }
        if (kind == "change") {
            list->change(1, translation, velocity);
        } else {
            list->pan(1).end({velocity, 0});
            list->line.advance(Seconds(3));
            EXPECT_FALSE(list->line.framesAreAskedFor());
        }
        expectStep(*list, words);
        ++steps;
        if (HasFailure())
            return;
    }
    EXPECT_GT(steps, 1000);
}

} // namespace
} // namespace tessivo::swipe
