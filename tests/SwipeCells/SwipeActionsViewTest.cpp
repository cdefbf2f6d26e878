#include "SwipeCells/SwipeActionsView.h"

#include "SwipeCells/SwipeList.h"

#include <gmock/gmock.h>

namespace tessivo::swipe {
namespace {

using testing::ElementsAre;
using Side = SwipeActionsOrientation;

/// A row of a cell of 320 by 100 points. A letter is 7.5 points wide, a line 18 high.
class SwipeActionsViewTest : public testing::Test {
protected:
    std::shared_ptr<SwipeAction> add(const std::string& title) {
        if (!list->right)
            list->right.emplace();
        return list->right->emplace_back(list->action(title));
    }
    SwipeActionsView& show() {
        list->cell(1).hideSwipe(false);
        list->cell(1).showSwipe(Side::Right, false);
        return *list->cell(1).actionsView();
    }

    std::shared_ptr<SwipeList> list = SwipeList::make();
};

ActionImage picture(double width, double height) {
    return {ui::Image::named("picture"), {width, height}};
}

TEST_F(SwipeActionsViewTest, AllButtonsAreAsWideAsTheWidestWithinTheMaximum) {
    const std::string words = "aaaa aaaa aaaa aaaa aaaa aaaa aaaa aaaa aaaa";
    const struct {
        const char* what;
        std::vector<std::string> titles;
        std::optional<double> minimum, maximum, padding;
        double width;
    } rows[] = {
        {"short: the standard width", {"OK"}, {}, {}, {}, 74},
        {"its text and padding", {"aaaaaaaaaa"}, {}, {}, {}, 91},
        {"whole points", {"aaaaaaaaa"}, {}, {}, {}, 84},
        {"long, wrapped at 290", {words}, {}, {}, {}, 271},
        {"two share 290", {std::string(30, 'a'), "OK"}, {}, {}, {}, 145},
        {"the widest decides, wherever", {"OK", "aaaaaaaaaa", "OK"}, {}, {}, {}, 91},
        {"no wider than the owner allows", {std::string(30, 'a')}, {}, 60, {}, 60},
        {"a small maximum is the minimum too", {"OK"}, {}, 60, {}, 60},
        {"the owner's minimum", {"OK"}, 100, {}, {}, 100},
        {"a minimum above the maximum", {"OK"}, 100, 60, {}, 100},
        {"no padding is none", {"aaaaaaaaaaa"}, {}, {}, 0, 83},
        {"a maximum of nothing is none", {"aaaaaaaaaaa"}, 0, 0, {}, 99},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        list = SwipeList::make();
        for (const auto& title : row.titles)
            add(title);
        list->options.minimumButtonWidth = row.minimum;
        list->options.maximumButtonWidth = row.maximum;
        list->options.buttonPadding = row.padding;
        auto& view = show();
        EXPECT_DOUBLE_EQ(view.minimumButtonWidth(), row.width);
        for (const ui::Button* button : view.buttons())
            EXPECT_DOUBLE_EQ(button->frame().width, row.width);
    }
    list = SwipeList::make();
    add("OK")->image = picture(90, 20);
    EXPECT_DOUBLE_EQ(show().minimumButtonWidth(), 106) << "a picture wider than the text";
}

TEST_F(SwipeActionsViewTest, PictureAndTextStandInTheMiddleAndAreLevelAlongTheRow) {
    const auto noTitle = add("");
    noTitle->image = picture(20, 30);
    const auto both = add("OK");
    both->image = picture(20, 24);
    add("OK");
    const auto& view = show();
    const auto& textOnly = view.button(0);
    EXPECT_EQ(textOnly.titleRect(), (ui::Rect{29, 41, 16, 18}));
    EXPECT_EQ(textOnly.intrinsicHeight(), 34);
    // 18 of text, 30 of the tallest picture, 8 between them: 56 from 22 on.
    EXPECT_EQ(view.button(1).imageRect(), (ui::Rect{27, 25, 20, 24}));
    EXPECT_EQ(view.button(1).titleRect(), (ui::Rect{29, 60, 16, 18}));
    EXPECT_EQ(view.button(1).intrinsicHeight(), 72);
    EXPECT_EQ(view.button(2).imageRect(), (ui::Rect{27, 35, 20, 30}))
        << "no space for a title that is not there";
    list->options.buttonSpacing = 20;
    EXPECT_EQ(show().button(1).titleRect().y, 66);
}

TEST_F(SwipeActionsViewTest, TwoLinesHangFromTheFirstOrStandInTheMiddle) {
    add("aaaa bbbb");
    list->options.maximumButtonWidth = 60;
    EXPECT_EQ(show().button(0).titleRect(), (ui::Rect{15, 41, 30, 36}));
    EXPECT_EQ(show().button(0).intrinsicHeight(), 34);
    list->options.buttonVerticalAlignment = SwipeVerticalAlignment::Center;
    EXPECT_EQ(show().button(0).titleRect(), (ui::Rect{15, 32, 30, 36}));
    EXPECT_EQ(show().button(0).intrinsicHeight(), 52);
}

TEST_F(SwipeActionsViewTest, ButtonsKeepToThePartOfTheCellThatIsSeen) {
    add("OK"); // at least 34 high
    const struct {
        const char* what;
        std::optional<ui::Rect> seen;
        double y, height;
    } rows[] = {
        {"nothing said", {}, 0, 100},
        {"all of it", ui::Rect{0, 0, 320, 600}, 0, 100},
        {"elsewhere", ui::Rect{0, 300, 320, 300}, 0, 100},
        {"cut above", ui::Rect{0, 130, 320, 400}, 30, 70},
        {"cut below", ui::Rect{0, 0, 320, 150}, 0, 50},
        {"cut on both sides", ui::Rect{0, 120, 320, 50}, 20, 50},
        {"too little below a bar", ui::Rect{0, 190, 320, 300}, 66, 34},
        {"too little above one", ui::Rect{0, 0, 320, 110}, 0, 34},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        list->visible = row.seen;
        const ui::Rect frame = show().subviews().front()->frame();
        EXPECT_EQ(frame.y, row.y);
        EXPECT_EQ(frame.height, row.height);
    }
    list->visible.reset();
    list->right->front()->image = picture(20, 150);
    EXPECT_EQ(show().subviews().front()->frame().height, 100) << "where nothing covers it, the cell's height";
}

TEST_F(SwipeActionsViewTest, TheListsSafeMarginWidensTheRowAndIsNotSeen) {
    add("OK");
    list->left = SwipeActions{list->action("Pin")};
    list->collection.setSafeAreaInsets({0, 20, 0, 30});
    for (const auto& [side, margin] : {std::pair(Side::Right, 30.0), {Side::Left, 20.0}}) {
        auto& cell = list->cell(1);
        cell.showSwipe(side, false);
        auto& view = *cell.actionsView();
        EXPECT_EQ(view.naturalRowWidth(), 74 + margin);
        EXPECT_EQ(list->centerX(1), 160 - offsetSign(side) * (74 + margin));
        EXPECT_EQ(view.visibleWidth(), 74);
        view.setVisibleWidth(margin - 1);
        EXPECT_EQ(view.visibleWidth(), 0);
        cell.hideSwipe(false);
    }
}

TEST_F(SwipeActionsViewTest, AnElasticRowFollowsAtAQuarterPastItsWidth) {
    add("OK");
    list->options.minimumButtonWidth = 80;
    for (const auto& [style, moved, content] : {std::tuple(SwipeExpansionStyle::bounceAtHalf(), 79.0, 79.0),
                                                {SwipeExpansionStyle::bounceAtHalf(), 180.0, 105.0},
                                                {SwipeExpansionStyle::deleteAtFill(), 180.0, 180.0}}) {
        list->options.expansionStyle = style;
        auto& view = show();
        view.setVisibleWidth(moved);
        EXPECT_EQ(view.contentSize(), (ui::Size{content, 100})) << moved;
    }
}

TEST_F(SwipeActionsViewTest, UnlessTheOwnerChoosesTheButtonsShareWhatIsSeen) {
    add("Far");
    add("Near");
    auto& view = show();
    view.setVisibleWidth(50);
    EXPECT_EQ(view.subviews()[0]->frame().x, 0);
    EXPECT_EQ(view.subviews()[1]->frame().x, 25);
    EXPECT_EQ(view.bounds().x, 0);
}

TEST_F(SwipeActionsViewTest, TheExpandedButtonCoversTheRow) {
    add("Far");
    add("Near");
    list->options.expansionStyle = SwipeExpansionStyle::deleteAtFill();
    list->options.transitionStyle = SwipeTransitionStyle::Reveal;
    auto& view = show();
    view.setVisibleWidth(200);
    EXPECT_EQ(view.subviews().back()->frame().x, 74);
    view.setExpanded(true, false);
    EXPECT_EQ(view.subviews().back()->frame().x, view.bounds().x);
    EXPECT_EQ(list->impacts.count, 0);
    view.setExpanded(false, false);
    EXPECT_EQ(view.subviews().back()->frame().x, 74);
}

TEST_F(SwipeActionsViewTest, ClearButtonsGiveWayToTheExpandingOneByThemselves) {
    for (const bool clear : {true, false}) {
        list = SwipeList::make();
        add("Far")->backgroundColor = clear ? ui::ColorRef::clear() : ui::ColorRef::white();
        add("Near");
        list->options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
        auto& view = show();
        view.setExpanded(true, true);
        list->line.advance(Seconds(1));
        EXPECT_EQ(view.buttons().front()->alpha(), clear ? 0 : 1);
        EXPECT_EQ(view.buttons().back()->alpha(), 1);
    }
}

TEST_F(SwipeActionsViewTest, GroundsAreTheActionsOwnOrThoseOfItsStyle) {
    const auto own = add("own");
    own->backgroundColor = ui::ColorRef::named("mainBack");
    add("plain");
    add("danger")->style = SwipeActionStyle::Destructive;
    add("clear")->backgroundColor = ui::ColorRef::clear();
    add("blurred")->backgroundEffect = VisualEffect::Dark;
    const auto& view = show();
    const auto groundOf = [&](std::size_t index) -> const auto& {
        const auto* shown = view.subviews()[index];
        const auto* wrapper = dynamic_cast<const SwipeActionButtonWrapperView*>(shown);
        return (wrapper ? wrapper : static_cast<SwipeActionButtonWrapperView*>(shown->subviews().front()))
            ->actionBackgroundColor();
    };
    const Color plain{0.7803494, 0.7761332, 0.7967314, 1};
    EXPECT_EQ(groundOf(4), ui::ColorRef::named("mainBack"));
    EXPECT_EQ(groundOf(3), ui::ColorRef::of(plain));
    EXPECT_EQ(groundOf(2), ui::ColorRef::of({1, 0.2352941, 0.1882353, 1}));
    EXPECT_EQ(groundOf(1), std::nullopt);
    EXPECT_EQ(groundOf(0), std::nullopt);
    EXPECT_NE(dynamic_cast<VisualEffectView*>(view.subviews()[0]), nullptr);
    EXPECT_EQ(view.backgroundColor(), ui::ColorRef::of(plain));
    EXPECT_TRUE(view.clipsToBounds());
    // A button without a background of its own does not show a press.
    for (ui::Button* button : view.buttons())
        button->press(ui::PressEvent::Down);
    std::vector<bool> highlights;
    for (const ui::Button* button : view.buttons())
        highlights.push_back(button->backgroundColor() == ui::ColorRef::of({0, 0, 0, 0.1}));
    EXPECT_THAT(highlights, ElementsAre(false, false, true, true, true));
    list->options.backgroundColor = ui::ColorRef::named("mainBack");
    EXPECT_EQ(show().backgroundColor(), ui::ColorRef::named("mainBack"));
}

TEST_F(SwipeActionsViewTest, AButtonLooksAsItsActionSaysAtRestAndWhilePressed) {
    const auto red = ui::ColorRef::of({1, 0, 0, 1});
    const auto green = ui::ColorRef::of({0, 1, 0, 1});
    const ui::Font large{21, ui::FontWeight::Bold};
    add("plain")->image = picture(20, 20);
    const auto own = add("own");
    own->font = large;
    own->textColor = red;
    own->highlightedTextColor = green;
    own->highlightedBackgroundColor = green;
    own->image = picture(20, 20);
    own->highlightedImage = ActionImage{ui::Image::named("pressed"), {20, 20}};
    add("red")->textColor = red;
    own->accessibilityLabel = "spoken";
    const auto& view = show();
    EXPECT_EQ(view.buttons()[1]->accessibilityName(), "spoken");
    EXPECT_EQ(view.buttons()[0]->accessibilityName(), "red");
    const struct {
        const char* what;
        std::size_t index;
        ui::Font font;
        ui::ColorRef text, pressedText, pressedGround;
        std::string pressedImage;
    } rows[] = {{"the standard",
                 2,
                 {15, ui::FontWeight::Medium},
                 ui::ColorRef::white(),
                 ui::ColorRef::white(),
                 ui::ColorRef::of({0, 0, 0, 0.1}),
                 "picture"},
                {"its own", 1, large, red, green, green, "pressed"},
                {"tinted by its text",
                 0,
                 {15, ui::FontWeight::Medium},
                 red,
                 red,
                 ui::ColorRef::of({0, 0, 0, 0.1}),
                 ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto& button = view.button(row.index);
        const auto pressed = [&](ui::PressEvent event) { view.buttons()[row.index]->press(event); };
        const auto imageName = [&] {
            return button.presentImage() ? button.presentImage()->image.name : std::string();
        };
        EXPECT_EQ(button.font(), row.font);
        EXPECT_EQ(button.presentTitleColor(), row.text);
        pressed(ui::PressEvent::Down);
        EXPECT_TRUE(button.isHighlighted());
        EXPECT_EQ(button.presentTitleColor(), row.pressedText);
        EXPECT_EQ(button.backgroundColor(), row.pressedGround);
        EXPECT_EQ(imageName(), row.pressedImage);
        pressed(ui::PressEvent::UpOutside);
        EXPECT_FALSE(button.isHighlighted());
        EXPECT_EQ(button.presentTitleColor(), row.text);
        EXPECT_EQ(button.backgroundColor(), ui::ColorRef::clear());
        EXPECT_EQ(imageName(), row.pressedImage.empty() ? "" : "picture");
    }
    EXPECT_TRUE(list->heard.back().starts_with("begin")) << "let go beside, nothing was chosen";
}

/// Records its calls, and takes its own time.
class NotingExpansion final : public SwipeExpanding {
public:
    SwipeExpansionAnimationTimingParameters timingParameters(std::span<ui::Button* const> buttons,
                                                             bool expanding) const override {
        note("asked", expanding, buttons);
        return {Seconds(0.4), Seconds(0.2)};
    }
    void buttonDidChange(ui::Animations&, ui::Button& button, bool expanding,
                         std::span<ui::Button* const> others) const override {
        note("told of " + button.title(), expanding, others);
    }
    mutable std::vector<std::string> heard;

private:
    void note(std::string what, bool expanding, std::span<ui::Button* const> buttons) const {
        what += expanding ? " out:" : " in:";
        for (const auto* button : buttons)
            what += " " + button->title();
        heard.push_back(what);
    }
};

TEST_F(SwipeActionsViewTest, TheOwnersDelegateTimesAndAccompaniesTheExpansion) {
    const auto expansion = std::make_shared<NotingExpansion>();
    for (const bool owned : {true, false}) {
        SCOPED_TRACE(owned ? "the owner's" : "none");
        list = SwipeList::make();
        for (const char* title : {"A", "B", "C"}) // A nearest the far edge
            add(title);
        list->options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
        list->options.transitionStyle = SwipeTransitionStyle::Drag;
        if (owned)
            list->options.expansionDelegate = expansion;
        auto& view = show();
        const auto& last = *view.subviews().back();
        const double duration = owned ? 0.4 : 0.6;
        view.setExpanded(true, false);
        ui::View guide;
        guide.setAnimations(&list->animations);
        guide.setCenterX(148 - view.bounds().x);
        const auto animator =
            ui::PropertyAnimator::make(list->animations, ui::DampedOver{Seconds(duration), 1});
        animator->addAnimations([&] { guide.setCenterX(0); });
        animator->startAnimation(Seconds(owned ? 0.2 : 0));
        for (int frame = 0; frame < 20; ++frame) {
            ASSERT_NEAR(last.drawnFrame().x - view.bounds().x,
                        guide.drawnValue(ui::AnimatableProperty::CenterX), 1e-9)
                << frame;
            list->line.advance(Seconds(1 / 30.0));
        }
        view.setExpanded(true, false);
        view.setExpanded(false, false);
        EXPECT_EQ(expansion->heard.size(), 4U) << "nothing for what it is already, and none without it";
    }
    EXPECT_THAT(expansion->heard, ElementsAre("asked out: A B C", "told of A out: B C", "asked in: A B C",
                                              "told of A in: B C"));
}

TEST_F(SwipeActionsViewTest, AChangeOfMindTurnsTheExpansionAroundWhereItIsDrawn) {
    add("A");
    add("B");
    list->options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
    list->options.transitionStyle = SwipeTransitionStyle::Drag;
    auto& view = show();
    const auto& last = *view.subviews().back();
    view.setExpanded(true, false);
    list->line.advance(Seconds(0.1));
    const double drawn = last.drawnFrame().x;
    ASSERT_LT(drawn, 73);
    ASSERT_GT(drawn, 1);
    view.setExpanded(false, false);
    EXPECT_EQ(last.frame().x, 74);
    ui::View guide;
    guide.setAnimations(&list->animations);
    guide.setCenterX(drawn);
    const auto animator = ui::PropertyAnimator::make(list->animations, ui::DampedOver{Seconds(0.6), 1});
    animator->addAnimations([&] { guide.setCenterX(74); });
    animator->startAnimation();
    for (int frame = 0; frame < 10; ++frame) {
        ASSERT_NEAR(last.drawnFrame().x, guide.drawnValue(ui::AnimatableProperty::CenterX), 1e-9) << frame;
        list->line.advance(Seconds(1 / 30.0));
    }
    list->line.advance(Seconds(0.4));
    EXPECT_DOUBLE_EQ(last.drawnFrame().x, 74);
    EXPECT_FALSE(list->line.framesAreAskedFor());
}

} // namespace
} // namespace tessivo::swipe
