#include "Interface/AlertController.h"
#include "Interface/Animation.h"
#include "Interface/Button.h"
#include "Interface/Gestures.h"
#include "Interface/PresentationStack.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Switch.h"
#include "Interface/TabBarController.h"
#include "Interface/TextInput.h"
#include "Interface/Transitioning.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Logs each call of its life cycle.
class LoggingScreen : public ViewController {
public:
    LoggingScreen(WindowContext& window, std::vector<std::string>& log, std::string name)
        : ViewController(window), log_(log), name_(std::move(name)) {}

    std::string screenName() const override { return name_; }

protected:
    void viewDidLoad() override { log_.push_back(name_ + " load"); }
    void viewWillAppear() override { log_.push_back(name_ + " willAppear"); }
    void viewDidAppear() override { log_.push_back(name_ + " didAppear"); }
    void viewWillDisappear() override { log_.push_back(name_ + " willDisappear"); }

private:
    std::vector<std::string>& log_;
    std::string name_;
};

/// A transition that ends when the test says.
class ManualTransitions final : public TransitioningDelegate {
public:
    class Transition final : public AnimatedTransitioning {
    public:
        explicit Transition(std::function<void()>& complete) : complete_(complete) {}
        void animateTransition(TransitionContext context) override { complete_ = context.completeTransition; }

    private:
        std::function<void()>& complete_;
    };

    std::shared_ptr<AnimatedTransitioning> animationControllerForPresented(ViewController&) override {
        return std::make_shared<Transition>(complete);
    }
    std::shared_ptr<AnimatedTransitioning> animationControllerForDismissed(ViewController&) override {
        return std::make_shared<Transition>(complete);
    }

    std::function<void()> complete;
};

class PresentationTest : public testing::Test {
protected:
    std::shared_ptr<LoggingScreen> make(const std::string& name,
                                        PresentationStyle style = PresentationStyle::FullScreen) {
        auto made = std::make_shared<LoggingScreen>(window, log, name);
        made->modalPresentationStyle = style;
        return made;
    }

    std::vector<std::string> takeLog() { return std::exchange(log, {}); }

    fakes::Timeline line;
    MainScreen screen;
    Animations animations{line, line};
    WindowContext window{screen, animations};
    std::vector<std::string> log;
    PresentationStack stack{window};
    std::shared_ptr<LoggingScreen> root = make("root");
};

TEST_F(PresentationTest, AFullScreenTakesTheAppearanceFromWhatItCoversAndGivesItBack) {
    stack.setRoot(root);
    EXPECT_THAT(takeLog(), ElementsAre("root load", "root willAppear", "root didAppear"));
    const auto cover = make("cover");
    root->present(cover);
    EXPECT_THAT(takeLog(),
                ElementsAre("cover load", "root willDisappear", "cover willAppear", "cover didAppear"));
    cover->dismiss();
    EXPECT_THAT(takeLog(), ElementsAre("cover willDisappear", "root willAppear", "root didAppear"));
    EXPECT_EQ(stack.top(), root.get());
}

TEST_F(PresentationTest, WhatFloatsLeavesTheScreenBelowAlone) {
    stack.setRoot(root);
    for (const auto style :
         {PresentationStyle::Sheet, PresentationStyle::Alert, PresentationStyle::ActionSheet}) {
        takeLog();
        const auto floating = make("floating", style);
        root->present(floating);
        floating->dismiss();
        EXPECT_THAT(takeLog(), ElementsAre("floating load", "floating willAppear", "floating didAppear",
                                           "floating willDisappear"));
    }
}

TEST_F(PresentationTest, DismissingFromBelowTakesAllAbove) {
    stack.setRoot(root);
    const auto middle = make("middle");
    root->present(middle);
    middle->present(make("sheet", PresentationStyle::Sheet));
    takeLog();
    root->dismiss();
    EXPECT_THAT(takeLog(), ElementsAre("sheet willDisappear", "root willAppear", "root didAppear"));
    EXPECT_EQ(stack.screens().size(), 1U);
    EXPECT_EQ(root->presentedViewController(), nullptr);
}

TEST_F(PresentationTest, AScreenPresentsOneOtherAtATime) {
    stack.setRoot(root);
    const auto first = make("first", PresentationStyle::Sheet);
    root->present(first);
    root->present(make("second", PresentationStyle::Sheet));
    EXPECT_EQ(stack.top(), first.get());
    EXPECT_EQ(first->presentingViewController(), root.get());
}

TEST_F(PresentationTest, AScreenOutsideAnyWindowPresentsNothing) {
    const auto other = make("other");
    root->present(other);
    root->dismiss();
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PresentationTest, ATransitionHoldsTheEndOfTheAppearanceBackAndRefusesOthers) {
    stack.setRoot(root);
    const auto transitions = std::make_shared<ManualTransitions>();
    const auto cover = make("cover", PresentationStyle::Custom);
    cover->transitioningDelegate = transitions;
    takeLog();
    bool completed = false;
    root->present(cover, true, [&] { completed = true; });
    EXPECT_THAT(takeLog(), ElementsAre("cover load", "root willDisappear", "cover willAppear"));
    EXPECT_TRUE(stack.isInTransition());
    cover->dismiss();
    cover->present(make("eager"));
    EXPECT_EQ(stack.screens().size(), 2U);
    transitions->complete();
    EXPECT_THAT(takeLog(), ElementsAre("cover didAppear"));
    EXPECT_TRUE(completed);

    cover->dismiss();
    EXPECT_THAT(takeLog(), ElementsAre("cover willDisappear", "root willAppear"));
    EXPECT_EQ(stack.screens().size(), 2U) << "what leaves is seen until it has left";
    transitions->complete();
    EXPECT_THAT(takeLog(), ElementsAre("root didAppear"));
    EXPECT_EQ(stack.screens().size(), 1U);
}

TEST_F(PresentationTest, AnAlertGoesBeforeItsAnswerIsHeard) {
    stack.setRoot(root);
    const auto alert = std::make_shared<AlertController>(window, AlertStyle::ActionSheet, "Sure?", "");
    std::vector<std::string> answers;
    alert->addAction({"No", AlertActionStyle::Destructive, {}});
    alert->addAction(
        {"Yes", AlertActionStyle::Default, [&] { answers.push_back(stack.top()->screenName()); }});
    root->present(alert);
    alert->cancel();
    EXPECT_EQ(stack.top(), alert.get()) << "without a cancel action a tap beside it does nothing";
    alert->choose(7);
    EXPECT_EQ(stack.top(), alert.get());
    alert->choose(1);
    EXPECT_THAT(answers, ElementsAre("root"));
}

/// A screen with a control of each kind that the user can act on, and a count of their calls.
class PressedScreen final : public ViewController {
public:
    explicit PressedScreen(WindowContext& window) : ViewController(window) {
        const auto count = [this] { ++told; };
        button.addTarget(PressEvent::UpInside, count);
        toggle.addValueChangedTarget(count);
        segments.setTitles({"a", "b"});
        segments.addValueChangedTarget(count);
        field.addEditingChangedTarget(count);
        tapped->addTarget(this, [this](GestureRecognizer&) { ++told; });
        row.addGestureRecognizer(tapped);
    }
    std::string screenName() const override { return "pressed"; }

    /// Acts on every control; returns how many responded.
    int pressAll() {
        told = 0;
        button.tap();
        toggle.toggle();
        segments.select(1 - segments.selectedIndex());
        field.editTo(field.text() + "x");
        row.tap();
        return told;
    }

    int told = 0;
    Button button{controls, "button"};
    Switch toggle{controls, "toggle"};
    SegmentedControl segments{controls, "segments"};
    TextField field{controls, "field"};
    View row{controls, "row"};
    std::shared_ptr<TapGestureRecognizer> tapped = std::make_shared<TapGestureRecognizer>();
};

TEST_F(PresentationTest, AScreenThatSlidesLeavesOrIsCoveredTakesNoActs) {
    constexpr int all = 5;
    const auto transitions = std::make_shared<ManualTransitions>();
    const auto pressed = std::make_shared<PressedScreen>(window);
    pressed->segments.setSelectedIndex(0);
    stack.setRoot(root);
    pressed->modalPresentationStyle = PresentationStyle::Custom;
    pressed->transitioningDelegate = transitions;
    root->present(pressed);
    EXPECT_EQ(pressed->pressAll(), 0) << "it slides in";
    transitions->complete();
    EXPECT_EQ(pressed->pressAll(), all);
    const auto sheet = make("sheet", PresentationStyle::Sheet);
    pressed->present(sheet);
    EXPECT_EQ(pressed->pressAll(), 0) << "a sheet covers it";
    sheet->dismiss();
    EXPECT_EQ(pressed->pressAll(), all);
    pressed->dismiss();
    EXPECT_EQ(pressed->pressAll(), 0) << "it slides out";
    transitions->complete();
    EXPECT_EQ(pressed->pressAll(), 0) << "it has left";
}

TEST_F(PresentationTest, APressThatACoverInterruptsEndsOutside) {
    const auto pressed = std::make_shared<PressedScreen>(window);
    stack.setRoot(pressed);
    std::vector<std::string> heard;
    pressed->button.addTarget(PressEvent::UpOutside, [&] { heard.push_back("outside"); });
    pressed->button.press(PressEvent::Down);
    pressed->present(make("sheet", PresentationStyle::Sheet));
    pressed->button.press(PressEvent::UpInside);
    pressed->button.press(PressEvent::UpInside);
    EXPECT_THAT(heard, ElementsAre("outside"));
    EXPECT_EQ(pressed->told, 0);
}

TEST_F(PresentationTest, TheViewFollowsTheSizeOfTheScreen) {
    stack.setRoot(root);
    screen.resize({834, 1194}, 2);
    EXPECT_EQ(root->view().frame(), (Rect{0, 0, 834, 1194}));
    EXPECT_TRUE(screen.isLarge());
}

class Tabs final : public TabBarController, public TabBarControllerDelegate {
public:
    using TabBarController::TabBarController;
    std::string screenName() const override { return "tabs"; }
    void listen() { delegate = weakSelf<TabBarControllerDelegate>(this); }
    void didSelectViewController(TabBarController&, ViewController& selected) override {
        told.push_back(selected.screenName());
    }
    std::vector<std::string> told;
};

class TabsTest : public PresentationTest {
protected:
    TabsTest() {
        tabs->setViewControllers({one, two}, {{"One", {}, {}, {}, {}}, {"Two", {}, {}, {}, {}}});
        tabs->listen();
    }

    std::shared_ptr<Tabs> tabs = std::make_shared<Tabs>(window);
    std::shared_ptr<LoggingScreen> one = make("one");
    std::shared_ptr<LoggingScreen> two = make("two");
};

TEST_F(TabsTest, ATabIsLoadedAtItsFirstShowing) {
    stack.setRoot(tabs);
    EXPECT_THAT(takeLog(), ElementsAre("one load", "one willAppear", "one didAppear"));
    tabs->select(1);
    EXPECT_THAT(takeLog(), ElementsAre("one willDisappear", "two load", "two willAppear", "two didAppear"));
    tabs->select(0);
    EXPECT_THAT(takeLog(), ElementsAre("two willDisappear", "one willAppear", "one didAppear"));
}

TEST_F(TabsTest, OnlyTheUsersChoiceIsTold) {
    stack.setRoot(tabs);
    tabs->setSelectedIndex(1);
    EXPECT_THAT(tabs->told, IsEmpty());
    tabs->select(1);
    tabs->select(0);
    tabs->select(9);
    EXPECT_THAT(tabs->told, ElementsAre("two", "one"));
}

TEST_F(TabsTest, AChoiceBeforeTheFirstShowingLoadsOnlyThatTab) {
    tabs->setSelectedIndex(1);
    stack.setRoot(tabs);
    EXPECT_THAT(takeLog(), ElementsAre("two load", "two willAppear", "two didAppear"));
    EXPECT_FALSE(one->isViewLoaded());
}

TEST_F(TabsTest, ATabPresentsOverTheTabs) {
    stack.setRoot(tabs);
    const auto cover = make("cover");
    takeLog();
    one->present(cover);
    EXPECT_THAT(takeLog(),
                ElementsAre("cover load", "one willDisappear", "cover willAppear", "cover didAppear"));
    EXPECT_EQ(cover->presentingViewController(), tabs.get());
    one->dismiss();
    EXPECT_EQ(stack.top(), tabs.get());
}

} // namespace
} // namespace tessivo::ui
