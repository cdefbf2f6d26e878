#include "SwipeCells/SwipeController.h"

#include "Interface/Animation.h"
#include "Interface/ControlRegistry.h"
#include "Interface/ScrollView.h"
#include "fakes/FixedWidthTexts.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Side = SwipeActionsOrientation;
using Timing = HandlerInvocationTiming;

const char* nameOf(Side side) {
    return side == Side::Left ? " left" : " right";
}

/// A cell outside any list, which records the calls of its controller.
class NotingCell final : public ui::View, public Swipeable, public SwipeControllerDelegate {
public:
    NotingCell() {
        addSubview(content);
        setFrame({0, 0, 320, 100});
        content.setFrame({0, 0, 320, 100});
        setAnimations(&animations);
        controller = SwipeController::make({animations, line, texts, nullptr, {}}, *this, content, *this);
        controller->setScrollView(&list);
    }
    ~NotingCell() override { controller->letGo(); }

    [[nodiscard]] SwipeState state() const override { return state_; }
    void setState(SwipeState state) override { state_ = state; }
    [[nodiscard]] SwipeActionsView* actionsView() const override { return row.get(); }
    void setActionsView(std::shared_ptr<SwipeActionsView> view) override {
        if (row)
            row->removeFromSuperview();
        row = std::move(view);
    }
    [[nodiscard]] ui::View& swipedView() override { return *this; }
    [[nodiscard]] const ui::View& swipedView() const override { return *this; }
    [[nodiscard]] std::optional<int> indexPath() const override { return item; }
    [[nodiscard]] const ui::PanGestureRecognizer& panGestureRecognizer() const override {
        return *controller->panGestureRecognizer();
    }
    [[nodiscard]] ui::Insets swipeLayoutMargins() const override { return {}; }
    void hideSwipe(bool animated) override { controller->hideSwipe(animated); }

    bool canBeginEditing(SwipeController&, Side side) override {
        note("may" + std::string(nameOf(side)));
        return mayBegin;
    }
    std::optional<SwipeActions> editActions(SwipeController&, Side side) override {
        note("actions" + std::string(nameOf(side)));
        return actions;
    }
    std::optional<SwipeOptions> editActionsOptions(SwipeController&, Side side) override {
        note("options" + std::string(nameOf(side)));
        return options;
    }
    void willBeginEditing(SwipeController&, Side side) override {
        note("begin" + std::string(nameOf(side)) +
             (row && state_ == SwipeState::Dragging ? "" : " too soon"));
    }
    void didEndEditing(SwipeController&, Side side) override { note("end" + std::string(nameOf(side))); }
    void didDelete(SwipeController&, int deleted) override {
        note("delete " + std::to_string(deleted) + (content.mask() ? "" : " unmasked"));
    }
    std::optional<ui::Rect> visibleRect(SwipeController&, ui::ScrollView& asked) override {
        note(std::string("visible") + (&asked == &list ? "" : " of another list") +
             (row ? " beside a row" : ""));
        return std::nullopt;
    }
    void note(const std::string& what) { heard.push_back(what); }
    std::vector<std::string> heardSoFar() { return std::exchange(heard, {}); }

    void begin(double velocity) {
        (void)controller->panGestureRecognizer()->begin({160, 50}, {}, {velocity, 0});
    }
    void change(double way, double velocity) {
        controller->panGestureRecognizer()->change({160 + way, 50}, {way, 0}, {velocity, 0});
    }
    void end(double velocity) { controller->panGestureRecognizer()->end({velocity, 0}); }

    fakes::Timeline line;
    ui::Animations animations{line, line};
    fakes::FixedWidthTexts texts;
    ui::ControlRegistry controls;
    ui::ScrollView list{controls, "list"};
    ui::View content;
    std::shared_ptr<SwipeController> controller;
    std::shared_ptr<SwipeActionsView> row;
    std::optional<int> item = 4;
    bool mayBegin = true;
    std::shared_ptr<SwipeAction> action =
        std::make_shared<SwipeAction>(SwipeActionStyle::Default, "OK", [this](SwipeAction&, int chosen) {
            note("chosen " + std::to_string(chosen));
        });
    std::optional<SwipeActions> actions = SwipeActions{action};
    std::optional<SwipeOptions> options;
    std::vector<std::string> heard;

private:
    SwipeState state_ = SwipeState::Center;
};

TEST(SwipeControllerDelegateTest, ASwipeAsksAndTellsInOneOrder) {
    NotingCell cell;
    cell.begin(-100);
    EXPECT_THAT(cell.heardSoFar(),
                ElementsAre("may right", "actions right", "options right", "visible", "begin right"));
    cell.change(-30, 50);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may left")) << "each move asks for where it goes";
    cell.end(100);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may left", "end right"));
    cell.line.advance(Seconds(3));
    cell.begin(0);
    EXPECT_THAT(cell.heardSoFar(),
                ElementsAre("may right", "actions right", "options right", "visible", "begin right"))
        << "a finger at rest goes to the left";
    cell.end(0);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may right"));
    cell.line.advance(Seconds(3));
    cell.begin(100);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may left")) << "an open row stays the same";
    EXPECT_EQ(cell.row->orientation(), Side::Right);
}

TEST(SwipeControllerDelegateTest, ARefusalStopsWhateverTheFingerDoes) {
    NotingCell cell;
    cell.mayBegin = false;
    cell.begin(100);
    cell.change(30, 100);
    cell.end(100);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may left", "may left", "may left"));
    EXPECT_EQ(cell.state(), SwipeState::Center);
    cell.mayBegin = true;
    cell.begin(100);
    cell.change(30, 100);
    cell.mayBegin = false;
    cell.change(60, 100);
    EXPECT_EQ(cell.content.center().x, 190);
    cell.end(-100);
    EXPECT_EQ(cell.state(), SwipeState::Dragging);
}

TEST(SwipeControllerDelegateTest, ARowThatIsCaughtOnItsWayBackIsMadeAnew) {
    NotingCell cell;
    cell.controller->setSwipeOffset(-74, false);
    cell.hideSwipe(true);
    cell.line.advance(Seconds(0.1));
    cell.heardSoFar();
    cell.begin(-100);
    EXPECT_THAT(cell.heardSoFar(),
                ElementsAre("may right", "actions right", "options right", "visible", "begin right"));
    cell.setState(SwipeState::Center); // the list has taken the cell back meanwhile
    cell.content.setCenterX(160);
    cell.end(-100);
    EXPECT_EQ(cell.state(), SwipeState::Center);
    EXPECT_FALSE(cell.line.framesAreAskedFor());
}

TEST(SwipeControllerDelegateTest, TheRowStandsBesideAnyContainerAndIsAsHighAsTheCell) {
    NotingCell cell;
    cell.content.setFrame({10, 20, 300, 60});
    cell.begin(-100);
    EXPECT_EQ(cell.row->frame(), (ui::Rect{300, -20, 640, 100}));
    cell.end(100);
    cell.line.advance(Seconds(3));
    cell.begin(100);
    EXPECT_EQ(cell.row->frame(), (ui::Rect{-640, -20, 640, 100}));
}

TEST(SwipeControllerDelegateTest, OnlyItsOwnPanIsHeldToGoAcross) {
    NotingCell cell;
    ui::PanGestureRecognizer stray;
    (void)stray.begin({}, {1, 50}, {});
    ui::TapGestureRecognizer tap;
    EXPECT_TRUE(cell.controller->gestureRecognizerShouldBegin(stray));
    EXPECT_TRUE(cell.controller->gestureRecognizerShouldBegin(tap));
    EXPECT_FALSE(cell.controller->panGestureRecognizer()->begin({160, 50}, {1, 50}, {}));
}

TEST(SwipeControllerDelegateTest, NoActionsAreNoRow) {
    NotingCell cell;
    for (const auto& none : {std::optional<SwipeActions>(), std::optional<SwipeActions>(std::in_place)}) {
        cell.actions = none;
        cell.begin(-100);
        cell.change(-30, -100);
        cell.end(-100);
        cell.controller->setSwipeOffset(-30, false);
        EXPECT_THAT(cell.heardSoFar(),
                    ElementsAre("may right", "actions right", "may right", "may right", "actions right"));
        EXPECT_EQ(cell.state(), SwipeState::Center);
        EXPECT_EQ(cell.content.center().x, 160);
    }
}

TEST(SwipeControllerDelegateTest, OutsideAnyListARowNeitherExpandsNorAsksWhatIsSeen) {
    NotingCell cell;
    cell.controller->setScrollView(nullptr);
    cell.options.emplace().expansionStyle = SwipeExpansionStyle::deleteAtFill();
    cell.begin(-100);
    EXPECT_THAT(cell.heardSoFar(), ElementsAre("may right", "actions right", "options right", "begin right"));
    cell.change(-300, -100);
    cell.change(-310, -100);
    EXPECT_FALSE(cell.row->expanded());
    EXPECT_DOUBLE_EQ(cell.content.center().x, 160 - 74 - 0.4 * (310 - 74));
}

TEST(SwipeControllerDelegateTest, AFillTellsInTheOrderOfItsTiming) {
    for (const auto timing : {Timing::With, Timing::After}) {
        NotingCell cell;
        cell.options.emplace().expansionStyle = SwipeExpansionStyle::deleteAtFill(true, timing);
        cell.begin(-100);
        cell.change(-300, -100);
        cell.change(-310, -100);
        ASSERT_TRUE(cell.row->expanded());
        cell.heardSoFar();
        cell.end(500); // an expanded row fires though the finger goes back
        const auto atOnce = cell.heardSoFar();
        cell.line.advance(Seconds(2));
        const auto told = ElementsAre("chosen 4", "end right", "delete 4");
        if (timing == Timing::With) {
            EXPECT_THAT(atOnce, ElementsAre("may left", "chosen 4", "end right", "delete 4"));
            EXPECT_THAT(cell.heardSoFar(), IsEmpty());
        } else {
            EXPECT_THAT(atOnce, ElementsAre("may left"));
            EXPECT_THAT(cell.heardSoFar(), told);
        }
        EXPECT_EQ(cell.content.center().x, 160);
        EXPECT_EQ(cell.content.mask(), nullptr);
        EXPECT_EQ(cell.state(), SwipeState::Center);
        EXPECT_FALSE(cell.action->completionHandler);
    }
}

TEST(SwipeControllerDelegateTest, ACellThatIsLetGoOfInTheMiddleOfItsDeletionIsLeftAlone) {
    NotingCell cell;
    cell.options.emplace().expansionStyle = SwipeExpansionStyle::deleteAtFill();
    cell.controller->setSwipeOffset(-74, false);
    cell.row->buttons().front()->tap();
    cell.line.advance(Seconds(0.1));
    ASSERT_NE(cell.content.mask(), nullptr);
    cell.heardSoFar();
    cell.controller->letGo();
    const double center = cell.content.center().x;
    EXPECT_EQ(cell.content.mask(), nullptr);
    cell.line.advance(Seconds(2));
    cell.begin(100);
    cell.hideSwipe(false);
    EXPECT_EQ(cell.state(), SwipeState::Right);
    EXPECT_EQ(cell.content.center().x, center);
    EXPECT_THAT(cell.heardSoFar(), IsEmpty());
}

TEST(SwipeControllerDelegateTest, ACellThatHasLeftItsListPerformsNothing) {
    for (const bool fills : {false, true}) {
        NotingCell cell;
        cell.action->hidesWhenSelected = true;
        cell.options.emplace();
        if (fills)
            cell.options->expansionStyle = SwipeExpansionStyle::plainFill();
        cell.controller->setSwipeOffset(-74, false);
        cell.heardSoFar();
        cell.item.reset();
        cell.row->buttons().front()->tap();
        cell.line.advance(Seconds(2));
        EXPECT_THAT(cell.heardSoFar(), IsEmpty());
        EXPECT_EQ(cell.state(), SwipeState::Right);
        EXPECT_EQ(cell.content.center().x, 160 - 74);
    }
}

} // namespace
} // namespace tessivo::swipe
