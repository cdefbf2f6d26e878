#include "Interface/AlertController.h"
#include "Interface/DatePicker.h"
#include "UnsplashPicker/UnsplashPickerPreviewViewController.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "shell/ControlWindow.h"

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QKeyEvent>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Lets no text grow beyond a length.
class LengthLimit final : public ui::TextInputDelegate {
public:
    bool shouldChangeText(ui::TextInput& input, ui::TextRange range,
                          const std::string& replacement) override {
        return ui::utf16Length(ui::replacing(input.text(), range, replacement)) <= 8;
    }
};

class TextControls : public ControlWindow {
protected:
    /// Draws an input of the program in one of the drawings for texts and gives it the keyboard.
    QQuickItem& edit(ui::TextInput& input, const QByteArray& drawing) {
        input.delegate = limit;
        auto& root = draw(*screen, drawing + " as TextInputItem }");
        hand.tapAt({200, 20});
        EXPECT_TRUE(runUntil([&] { return input.isEditing(); }));
        for (auto* item : drawnItems(root)) {
            if (item->hasActiveFocus() && item->property("cursorPosition").isValid())
                return *item;
        }
        ADD_FAILURE() << "Nothing has the keyboard";
        return root;
    }

    std::shared_ptr<LengthLimit> limit = std::make_shared<LengthLimit>();
};

void expectEditing(Hand& hand, QQuickItem& field, const ui::TextInput& input) {
    hand.commit(QStringLiteral("abcdef"));
    EXPECT_EQ(input.text(), "abcdef");

    // What is refused leaves the text and the cursor where they were.
    field.setProperty("cursorPosition", 2);
    hand.commit(QStringLiteral("xyz"));
    EXPECT_EQ(input.text(), "abcdef");
    EXPECT_EQ(field.property("text").toString(), QStringLiteral("abcdef"));
    EXPECT_EQ(field.property("cursorPosition").toInt(), 2);

    // A character of two units goes in and out whole, also in the middle.
    hand.commit(QString::fromUtf8("🏖"));
    EXPECT_EQ(input.text(), "ab🏖cdef");
    EXPECT_EQ(field.property("cursorPosition").toInt(), 4);
    hand.press(Qt::Key_Backspace);
    EXPECT_EQ(input.text(), "abcdef");
    EXPECT_EQ(field.property("text").toString(), QStringLiteral("abcdef"));
}

TEST_F(TextControls, AFieldHandsOverEachChangeAndTakesBackWhatIsRefused) {
    auto& input = screen->field;
    auto& field = edit(input, "EditableField { width: parent.width; input: root.screen.control('field')");
    expectEditing(hand, field, input);
}

TEST_F(TextControls, ABoxHandsOverEachChangeAndTakesBackWhatIsRefused) {
    auto& input = screen->box;
    auto& field = edit(input, "MessageBox { width: parent.width; input: root.screen.control('box')");
    expectEditing(hand, field, input);
    hand.press(Qt::Key_Return);
    EXPECT_EQ(input.text(), "ab\ncdef");
}

TEST_F(TextControls, TheProgramsTextIsShownAndItMayPutTheKeyboardAway) {
    auto& input = screen->field;
    auto& field = edit(input, "EditableField { width: parent.width; input: root.screen.control('field')");
    input.setText("Anna");
    EXPECT_EQ(field.property("text").toString(), QStringLiteral("Anna"));
    input.endEditing();
    EXPECT_FALSE(field.hasActiveFocus());
}

TEST_F(ControlWindow, ASwitchTogglesByTouchOfItsRowAndByKey) {
    auto& toggle = screen->toggle;
    toggle.setAccessibilityName("All Day");
    int changes = 0;
    toggle.addValueChangedTarget([&] { ++changes; });
    draw(*screen, "SwitchRow { width: parent.width; label: root.screen.control('label') as LabelItem\n"
                  "item: root.screen.control('toggle') as SwitchItem }");
    hand.tap(QStringLiteral("All Day"));
    EXPECT_TRUE(toggle.isOn());
    hand.tapAt({60, 26});
    EXPECT_FALSE(toggle.isOn());
    hand.find(QStringLiteral("All Day"))->forceActiveFocus();
    hand.press(Qt::Key_Space);
    EXPECT_TRUE(toggle.isOn());
    hand.press(Qt::Key_Return);
    EXPECT_FALSE(toggle.isOn());
    EXPECT_EQ(changes, 4);
    toggle.setOn(true);
    EXPECT_EQ(changes, 4);
}

TEST_F(ControlWindow, SegmentsAreSelectedByTouchAndByArrowKeysAsTheyStand) {
    auto& segments = screen->segments;
    segments.setTitles({"Hours", "Days", "Weeks"});
    segments.setSelectedIndex(0);
    auto& root = draw(*screen, "Segments { width: parent.width\n"
                               "item: root.screen.control('segments') as SegmentedItem }");
    hand.tap(QStringLiteral("Weeks"));
    EXPECT_EQ(segments.selectedIndex(), 2);
    root.childItems().front()->forceActiveFocus();
    hand.press(Qt::Key_Left);
    EXPECT_EQ(segments.selectedIndex(), 1);
    hand.press(Qt::Key_Right);
    hand.press(Qt::Key_Right);
    EXPECT_EQ(segments.selectedIndex(), 2);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    hand.press(Qt::Key_Right);
    EXPECT_EQ(segments.selectedIndex(), 1);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

class Wheels : public ControlWindow {
protected:
    Wheels() {
        draw(*screen, "WheelPicker { width: parent.width\n"
                      "picker: root.screen.control('picker') as DatePickerItem }");
    }
    ~Wheels() override { undraw(); }

    /// Rows that the wheels stand at: day, month, year.
    [[nodiscard]] std::vector<int> rows() const {
        return {picker.wheel(0).selected, picker.wheel(1).selected, picker.wheel(2).selected};
    }
    [[nodiscard]] bool standAt(const std::vector<int>& wanted) const {
        return runUntil([&] { return rows() == wanted; });
    }
    [[nodiscard]] static QPointF wheel(int index) { return {70.0 + 125 * index, 90}; }

    IcuCalendar calendar{"en_US", "Europe/Berlin"};
    IcuDateFormatters formatters{"en_US", "Europe/Berlin"};
    ui::DatePicker picker{screen->controls, "picker",   ui::DatePickerMode::Date,
                          calendar,         formatters, instantAt(1908261015)}; // 21 June 2030
};

TEST_F(Wheels, TurnByTouchByMouseWheelAndByArrowKeys) {
    const auto start = rows();
    const QPointF threeRows(0, 3 * 36 + 30); // and what a drag uses up before anything moves
    hand.drag(wheel(0) + threeRows / 2, wheel(0) - threeRows / 2);
    EXPECT_TRUE(standAt({start[0] + 3, start[1], start[2]})) << testing::PrintToString(rows());
    hand.turnMouseWheel(wheel(1), -2);
    EXPECT_TRUE(standAt({start[0] + 3, start[1] + 2, start[2]})) << testing::PrintToString(rows());
    hand.turnMouseWheel(wheel(1), 1);
    EXPECT_TRUE(standAt({start[0] + 3, start[1] + 1, start[2]})) << testing::PrintToString(rows());
    hand.press(Qt::Key_Tab);
    hand.press(Qt::Key_Down);
    EXPECT_TRUE(standAt({start[0] + 4, start[1] + 1, start[2]})) << testing::PrintToString(rows());
}

TEST_F(Wheels, LeaveAPageTheScrollingThatBeganElsewhereOnIt) {
    auto& root = draw(*screen, R"(
        Flickable {
            id: page
            anchors.fill: parent
            contentHeight: 2000
            WheelPicker { y: 300; width: parent.width; picker: root.screen.control('picker') as DatePickerItem }
        })");
    const QQuickItem& page = *root.childItems().front();
    const auto start = rows();
    const auto scrolled = [&] { return page.property("contentY").toDouble(); };
    const QPointF mouse = wheel(0) + QPointF(0, 60); // above the wheels, until they come to it
    for (int turn = 0; turn < 5; ++turn) {
        const double before = scrolled();
        hand.turnMouseWheel(mouse, -1);
        EXPECT_TRUE(runUntil([&] { return scrolled() > before + 20; })) << turn;
    }
    for (int slide = 0; slide < 2; ++slide)
        hand.slideOnTouchpad(mouse, {0, -12});
    EXPECT_EQ(rows(), start);
    virtualtime::pass(std::chrono::milliseconds(1000));
    const double place = scrolled();
    ASSERT_GT(place, 150); // the wheels are under the mouse
    ASSERT_LT(place, 330);
    hand.turnMouseWheel(mouse, -1); // anew, on the wheel
    EXPECT_TRUE(standAt({start[0] + 1, start[1], start[2]})) << testing::PrintToString(rows());
    EXPECT_EQ(scrolled(), place);
}

TEST_F(Wheels, FollowTheProgramsDateAndCutTheDayToTheMonth) {
    picker.setDate(instantAt(1927627200)); // 31 January 2031
    hand.turnMouseWheel(wheel(1), -1);
    EXPECT_TRUE(standAt({27, 1, picker.wheel(2).selected})) << testing::PrintToString(rows());
    EXPECT_TRUE(runUntil([&] { return hand.find(QStringLiteral("28")) != nullptr; }));
}

TEST_F(ControlWindow, AnAlertStaysUntilItIsAnswered) {
    std::vector<std::string> answers;
    auto question =
        std::make_shared<ui::AlertController>(windowContext, ui::AlertStyle::Alert, "Title", "Text");
    question->addAction({"Maybe", ui::AlertActionStyle::Default, [&] { answers.push_back("Maybe"); }});
    question->addAction({"Yes", ui::AlertActionStyle::Default, [&] { answers.push_back("Yes"); }});
    screen->present(question, false);
    draw(*question, "AlertDialog { anchors.fill: parent; focus: true; alert: root.screen as AlertItem }");
    hand.tapAt({195, 30});
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(stack.top(), question.get());
    EXPECT_THAT(answers, IsEmpty());
    hand.tap(QStringLiteral("Yes"));
    EXPECT_THAT(answers, ElementsAre("Yes"));
    EXPECT_EQ(stack.top(), screen.get());
}

class DrawnSheet : public ControlWindow {
protected:
    static constexpr double height = 300;

    ~DrawnSheet() override { undraw(); }

    /// Shows a sheet and waits until it has risen.
    void show() {
        stack.setRoot(screen);
        sheet = std::make_shared<unsplash::UnsplashPickerPreviewViewController>(windowContext, ui::Image{},
                                                                                "Ada");
        sheet->modalPresentationStyle = ui::PresentationStyle::Sheet;
        sheet->sheetPresentation.height = height;
        screen->present(sheet, false);
        draw(*sheet, "Sheet { anchors.fill: parent; screen: root.screen }");
        ASSERT_TRUE(runUntil([&] { return top() == window.height() - height; }));
    }
    [[nodiscard]] double top() const {
        const auto* close = hand.find(QStringLiteral("Close")); // the sheet's content, below its handle
        return close ? close->mapToScene({0, 0}).y() - 8 : 0;
    }
    [[nodiscard]] bool hasGone() const { return stack.top() == screen.get(); }
    void dragDownBy(double way) {
        const QPointF handle(195, window.height() - height + 4);
        hand.drag(handle, handle + QPointF(0, way));
    }

    std::shared_ptr<ui::ViewController> sheet;
};

TEST_F(DrawnSheet, ReturnsFromAShortDragAndGoesByALongOne) {
    show();
    dragDownBy(40);
    EXPECT_TRUE(runUntil([&] { return top() == window.height() - height; }));
    EXPECT_FALSE(hasGone());
    dragDownBy(200);
    EXPECT_TRUE(runUntil([&] { return hasGone(); }));
}

TEST_F(DrawnSheet, GoesByATapBesideIt) {
    show();
    hand.tapAt({195, 100});
    EXPECT_TRUE(runUntil([&] { return hasGone(); }));
}

TEST_F(ControlWindow, EscapeAndBackAnswerNoWhereATapBesideTheQuestionDoesNothing) {
    for (const auto style : {ui::AlertStyle::Alert, ui::AlertStyle::ActionSheet}) {
        for (const auto key : {Qt::Key_Escape, Qt::Key_Back}) {
            std::vector<std::string> answers;
            auto question = std::make_shared<ui::AlertController>(windowContext, style, "Delete?", "");
            question->addAction({"Yes", ui::AlertActionStyle::Default, [&] { answers.push_back("Yes"); }});
            question->addAction(
                {"No", ui::AlertActionStyle::Destructive, [&] { answers.push_back("No"); }, true});
            screen->present(question, false);
            draw(*question, style == ui::AlertStyle::Alert
                                ? "AlertDialog { anchors.fill: parent; alert: root.screen as AlertItem }"
                                : "ActionSheet { anchors.fill: parent; alert: root.screen as AlertItem }");
            hand.tapAt({195, 30});
            EXPECT_EQ(stack.top(), question.get());
            hand.press(key);
            EXPECT_THAT(answers, ElementsAre("No"));
            EXPECT_EQ(stack.top(), screen.get());
            undraw();
        }
    }
}

TEST_F(ControlWindow, ADisabledButtonTakesNoTouchAndNoKey) {
    auto& button = screen->button;
    button.setTitle("Next");
    int taps = 0;
    button.addTarget(ui::PressEvent::UpInside, [&] { ++taps; });
    button.setEnabled(false);
    draw(*screen, "TextButton { button: root.screen.control('button') as ButtonItem }");
    hand.tap(QStringLiteral("Next"));
    hand.press(Qt::Key_Return);
    EXPECT_EQ(taps, 0);
    button.setEnabled(true);
    hand.tap(QStringLiteral("Next"));
    EXPECT_EQ(taps, 1);
    hand.press(Qt::Key_Space);
    hand.press(Qt::Key_Return);
    EXPECT_EQ(taps, 3);
}

TEST_F(ControlWindow, AButtonTellsAReleaseBesideItAndAHeldKeyOnce) {
    auto& button = screen->button;
    button.setTitle("Next");
    std::vector<std::string> heard;
    button.addTarget(ui::PressEvent::UpInside, [&] { heard.push_back("inside"); });
    button.addTarget(ui::PressEvent::UpOutside, [&] { heard.push_back("outside"); });
    draw(*screen, "TextButton { y: 100; width: 200; button: root.screen.control('button') as ButtonItem }");
    hand.drag({100, 120}, {100, 300});
    EXPECT_THAT(heard, ElementsAre("outside"));
    hand.find(QStringLiteral("Next"))->forceActiveFocus();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&window, &down);
    QCoreApplication::sendEvent(&window, &held);
    EXPECT_THAT(heard, ElementsAre("outside", "inside"));
}

TEST_F(ControlWindow, AMenuOfAButtonOpensByKeyServesTheKeyboardAndGivesTheFocusBack) {
    auto& button = screen->button;
    button.setTitle("More");
    std::vector<std::string> chosen;
    const auto note = [&](const char* what) { return [&chosen, what] { chosen.emplace_back(what); }; };
    button.setMenu(
        {{{"Share", "", note("share"), {}},
          {"Edit", "", nullptr, {{"Title", "", note("title"), {}}, {"Date", "", note("date"), {}}}}}});
    button.setShowsMenuAsPrimaryAction(true);
    draw(*screen, "TextButton { button: root.screen.control('button') as ButtonItem }");
    auto* const opener = hand.find(QStringLiteral("More"));
    opener->forceActiveFocus();
    hand.press(Qt::Key_Return);
    ASSERT_TRUE(runUntil([&] { return hand.find(QStringLiteral("Share")) != nullptr; }));
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(hand.find(QStringLiteral("Share")), nullptr);
    EXPECT_TRUE(opener->hasActiveFocus());
    hand.press(Qt::Key_Space);
    hand.press(Qt::Key_Down);
    hand.press(Qt::Key_Return);
    ASSERT_TRUE(runUntil([&] { return hand.find(QStringLiteral("Date")) != nullptr; }));
    hand.tap(QStringLiteral("Date"));
    EXPECT_THAT(chosen, ElementsAre("date"));
    EXPECT_EQ(hand.find(QStringLiteral("Date")), nullptr);
}

TEST_F(Wheels, TakeAClickOnARowTypedNumbersAndArrowsFromWheelToWheel) {
    picker.setDate(instantAt(1908261015));
    const auto start = rows();
    hand.tapAt(wheel(0) + QPointF(0, 36));
    EXPECT_TRUE(standAt({start[0] + 1, start[1], start[2]})) << testing::PrintToString(rows());
    hand.press(Qt::Key_0);
    hand.press(Qt::Key_9);
    EXPECT_TRUE(standAt({8, start[1], start[2]})) << testing::PrintToString(rows());
    hand.press(Qt::Key_Right);
    hand.press(Qt::Key_Up);
    EXPECT_TRUE(standAt({8, start[1] - 1, start[2]})) << testing::PrintToString(rows());
}

TEST_F(Wheels, AreNamedByTheirFieldAndWhereTheyStand) {
    picker.setWheelNames({"Day", "Month", "Year"});
    draw(*screen, "WheelPicker { width: parent.width\n"
                  "picker: root.screen.control('picker') as DatePickerItem }");
    picker.setDate(instantAt(1908261015));
    for (const char* name : {"Day, 21", "Month, June", "Year, 2030"})
        EXPECT_TRUE(hand.find(QString::fromLatin1(name))) << name;
}

TEST_F(ControlWindow, AControlThatTheScreenLacksStopsTheProgram) {
    shell::ScreenItem* item = shell::ScreenItem::make(screen, context, &window);
    EXPECT_THROW(item->control(QStringLiteral("nextButon")), fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo
