#include "Interface/Button.h"
#include "Interface/ControlRegistry.h"
#include "Interface/Gestures.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Signal.h"
#include "Interface/Switch.h"
#include "Interface/TextInput.h"

#include <gmock/gmock.h>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;

TEST(SignalTest, SubscribersMayLeaveAndJoinWhileTheyAreTold) {
    Signal<int> signal;
    std::vector<std::string> heard;
    Subscription second;
    Subscription third;
    const auto first = signal.subscribe([&](int value) {
        heard.push_back("first " + std::to_string(value));
        second.end();
        if (!third.isActive())
            third = signal.subscribe([&](int later) { heard.push_back("third " + std::to_string(later)); });
    });
    second = signal.subscribe([&](int) { heard.push_back("second"); });
    signal.emit(1);
    signal.emit(2);
    EXPECT_THAT(heard, ElementsAre("first 1", "first 2", "third 2"));
}

TEST(SignalTest, ASubscriptionMayOutliveItsSignal) {
    Subscription subscription;
    {
        Signal<> signal;
        subscription = signal.subscribe([] {});
    }
    subscription.end();
}

struct Replacement {
    std::string text;
    TextRange range;
    std::string replacement;
    std::string result;
};

TEST(TextTest, RangesCountSixteenBitUnits) {
    const Replacement cases[] = {
        {"", {0, 0}, "a", "a"},           {"abc", {1, 1}, "", "ac"},     {"abc", {3, 0}, "d", "abcd"},
        {"abc", {1, 99}, "!", "a!"},      {"abc", {99, 1}, "!", "abc!"}, {"äöü", {1, 1}, "o", "äoü"},
        {"a😀b", {1, 2}, "c", "acb"},      {"a😀b", {3, 1}, "c", "a😀c"},   {"a😀b", {2, 2}, "", "a"},
        {"日本語", {1, 1}, "-", "日-語"},
    };
    for (const auto& [text, range, replacement, result] : cases)
        EXPECT_EQ(replacing(text, range, replacement), result)
            << text << " at " << range.location << "+" << range.length;
    EXPECT_EQ(utf16Length("a😀ä日"), 5U);
}

class RecordingDelegate final : public TextInputDelegate {
public:
    bool shouldChangeText(TextInput&, TextRange range, const std::string& replacement) override {
        asked.push_back(std::to_string(range.location) + "+" + std::to_string(range.length) + "=" +
                        replacement);
        return allow;
    }
    void didBeginEditing(TextInput&) override { asked.push_back("begin"); }
    void didEndEditing(TextInput&) override { asked.push_back("end"); }

    bool allow = true;
    std::vector<std::string> asked;
};

class TextInputTest : public testing::Test {
protected:
    TextInputTest() {
        field.delegate = delegate;
        field.addEditingChangedTarget([this] { ++changes; });
    }

    ControlRegistry registry;
    TextField field{registry, "field"};
    std::shared_ptr<RecordingDelegate> delegate = std::make_shared<RecordingDelegate>();
    int changes = 0;
};

TEST_F(TextInputTest, ARefusedEditChangesNothing) {
    field.setText("kept");
    delegate->allow = false;
    EXPECT_FALSE(field.edit({0, 4}, "lost"));
    EXPECT_EQ(field.text(), "kept");
    EXPECT_EQ(changes, 0);
}

TEST_F(TextInputTest, AWholeNewTextIsHandedOnAsTheSmallestRange) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"", "a", "0+0=a"},    {"ab", "axb", "1+0=x"}, {"aab", "ab", "1+1="},  {"abc", "", "0+3="},
        {"a😀", "a😁", "1+2=😁"}, {"äx", "öx", "0+1=ö"},  {"aa", "aaa", "2+0=a"}, {"same", "same", "4+0="},
    };
    for (const auto& [before, after, range] : cases) {
        field.setText(before);
        delegate->asked.clear();
        EXPECT_TRUE(field.editTo(after));
        EXPECT_EQ(field.text(), after);
        EXPECT_THAT(delegate->asked, ElementsAre(range)) << before << " to " << after;
    }
}

TEST_F(TextInputTest, TheProgramsOwnTextAsksNobody) {
    field.setText("set");
    EXPECT_TRUE(delegate->asked.empty());
    EXPECT_EQ(changes, 0);
}

TEST_F(TextInputTest, EditingBeginsAndEndsOnce) {
    field.beginEditing();
    field.beginEditing();
    field.endEditing();
    field.endEditing();
    EXPECT_THAT(delegate->asked, ElementsAre("begin", "end"));
}

TEST(ButtonTest, ADisabledButtonHearsNoPress) {
    ControlRegistry registry;
    Button button(registry, "button");
    std::vector<std::string> heard;
    button.addTarget(PressEvent::Down, [&] { heard.push_back("down"); });
    button.addTarget(PressEvent::UpInside, [&] { heard.push_back("inside"); });
    button.addTarget(PressEvent::UpOutside, [&] { heard.push_back("outside"); });
    button.tap();
    button.press(PressEvent::UpOutside);
    button.setEnabled(false);
    button.tap();
    EXPECT_THAT(heard, ElementsAre("down", "inside", "outside"));
    EXPECT_EQ(button.titleColor(), ColorRef::named("disabled"));
}

TEST(ButtonTest, AMenuAsPrimaryActionOpensInPlaceOfATap) {
    ControlRegistry registry;
    Button button(registry, "button");
    std::vector<std::string> heard;
    button.addTarget(PressEvent::UpInside, [&] { heard.push_back("inside"); });
    const auto requests = button.onMenuRequest([&] { heard.push_back("menu"); });
    button.setMenu({{{"Share", "", {}, {}}}});
    button.tap();
    button.setShowsMenuAsPrimaryAction(true);
    button.tap();
    EXPECT_THAT(heard, ElementsAre("inside", "menu"));
}

TEST(ValueControlsTest, OnlyTheUsersChangeCallsTargets) {
    ControlRegistry registry;
    int calls = 0;
    Switch toggle(registry, "toggle");
    toggle.addValueChangedTarget([&] { ++calls; });
    toggle.setOn(true);
    EXPECT_EQ(calls, 0);
    toggle.toggle();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(toggle.isOn());

    SegmentedControl segments(registry, "segments");
    segments.setTitles({"a", "b"});
    segments.setSelectedIndex(0);
    segments.addValueChangedTarget([&] { ++calls; });
    segments.select(0);
    segments.select(2);
    segments.select(-1);
    EXPECT_EQ(calls, 1);
    segments.select(1);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(segments.selectedTitle(), "b");
}

TEST(TapTest, EveryTapRecognizerOfAViewHearsATap) {
    View view;
    int taps = 0;
    for (int binding = 0; binding < 3; ++binding) {
        const auto recognizer = std::make_shared<TapGestureRecognizer>();
        recognizer->addTarget(&view, [&](GestureRecognizer&) { ++taps; });
        view.addGestureRecognizer(recognizer);
    }
    view.tap();
    EXPECT_EQ(taps, 3);
}

} // namespace
} // namespace tessivo::ui
