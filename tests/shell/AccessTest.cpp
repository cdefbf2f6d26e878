#include "bridge/ScreenPane.h"
#include "shell/ProgramWindow.h"
#include "support/Events.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <vector>

namespace tessivo {
namespace {

using testing::ElementsAreArray;

std::string roleName(QAccessible::Role role) {
    static const std::map<QAccessible::Role, const char*> names{
        {QAccessible::Pane, "screen"},        {QAccessible::Dialog, "dialog"},
        {QAccessible::PopupMenu, "menu"},     {QAccessible::MenuItem, "item"},
        {QAccessible::Heading, "heading"},    {QAccessible::StaticText, "text"},
        {QAccessible::EditableText, "field"}, {QAccessible::Button, "button"},
        {QAccessible::CheckBox, "switch"},    {QAccessible::RadioButton, "choice"},
        {QAccessible::SpinBox, "wheel"},      {QAccessible::PageTabList, "segments"},
        {QAccessible::PageTab, "tab"},        {QAccessible::List, "list"},
        {QAccessible::Graphic, "picture"},    {QAccessible::Window, "window"}};
    const auto found = names.find(role);
    return found == names.end() ? "role " + std::to_string(role) : found->second;
}

/// The tree under an element as a screen reader finds it, a line for each: indented, with a star where the
/// keyboard can stop and an arrow where it is.
class Tree {
public:
    explicit Tree(QAccessibleInterface& root) {
        for (int child = 0; child < root.childCount(); ++child)
            describe(*root.child(child), 0);
    }

    std::string text;
    std::vector<std::string> stops;

private:
    void describe(QAccessibleInterface& element, int depth) {
        const QAccessible::State state = element.state();
        if (state.invisible)
            return;
        std::string name = element.text(QAccessible::Name).toStdString();
        std::ranges::replace(name, '\n', ' ');
        // Qt says of every text that it could have the keyboard.
        const bool stop = state.focusable && !state.disabled && element.role() != QAccessible::StaticText;
        text += std::string(static_cast<std::size_t>(depth) * 2, ' ') +
                (state.focused ? "> "
                 : stop        ? "* "
                               : "") +
                roleName(element.role()) + " '" + name + "'" + (state.disabled ? " disabled" : "") +
                (state.modal ? " modal" : "") +
                (!state.checkable ? ""
                 : state.checked  ? " on"
                                  : " off") +
                (state.selected ? " selected" : "");
        if (auto* value = element.valueInterface())
            text += " " + value->currentValue().toString().toStdString() + " of " +
                    value->minimumValue().toString().toStdString() + " to " +
                    value->maximumValue().toString().toStdString();
        text += '\n';
        if (stop) // a list that is one stop hands on to one of its items
            stops.push_back(element.role() == QAccessible::List
                                ? element.child(0)->text(QAccessible::Name).toStdString()
                                : element.text(QAccessible::Name).toStdString());
        for (int child = 0; child < element.childCount(); ++child)
            describe(*element.child(child), depth + 1);
    }
};

struct Screen {
    std::vector<const char*> way; ///< what is pressed to come there; "%" is the Menu key, "=..." is typed
    const char* back;             ///< has the keyboard after Escape
    const char* tree;             ///< empty where it is much like another one
};

constexpr std::size_t endless = 30; ///< stops: a grid that grows as the keyboard goes on

const char* const card = "Summer, 25 June 2030, In 4\nDays";

class AccessTest : public testing::Test, protected ProgramWindow {
protected:
    AccessTest() { store(summerRecord()); }

    void go(const std::string& step) {
        if (step == "%") {
            key(Qt::Key_Menu);
        } else if (step.starts_with('=')) {
            hand->commit(QString::fromStdString(step.substr(1)));
        } else {
            reach(step);
            key(Qt::Key_Return);
        }
        settle();
    }

    [[nodiscard]] Tree tree() const { return Tree(*QAccessible::queryAccessibleInterface(&window())); }

    /// The screen, sheet, alert or menu that has the keyboard.
    [[nodiscard]] const QQuickItem* pane() const {
        const QQuickItem* item = window().activeFocusItem();
        while (item && !qobject_cast<const shell::ScreenPane*>(item))
            item = item->parentItem();
        return item;
    }

    /// What Tab comes to, from where the keyboard is and round to there again.
    [[nodiscard]] std::vector<std::string> walk(Qt::Key forth) {
        const auto* const start = window().activeFocusItem();
        const auto* const top = pane();
        std::vector<std::string> met;
        do {
            met.push_back(focused().toStdString());
            EXPECT_NE(met.back(), "");
            key(forth, forth == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            EXPECT_EQ(pane(), top) << "The keyboard has left for " << focused().toStdString();
        } while (window().activeFocusItem() != start && met.size() < endless);
        return met;
    }
};

TEST_F(AccessTest, EachScreenTakesTheKeyboardKeepsItTellsItselfAndGivesItBack) {
    const Screen screens[] = {
        {{}, card, R"(screen 'Tessivo'
  list 'Future'
    > button 'Summer, 25 June 2030, In 4 Days'
  heading 'Tessivo'
  * button 'Settings'
  * tab 'Past'
  * tab 'Future' selected
  * button 'Add Event'
)"},
        {{"Add Event"}, "Add Event", R"(screen 'Event Title'
  * button 'Back'
  heading 'Event Title'
  > field 'Add a title'
  text 'Title (0/20)'
  text 'Your Event Title Date of Event, In a certain days'
  button 'Next' disabled
)"},
        {{"Add Event", "=Trip", "Next", "Day, 21 June 2030"}, "Next", R"(screen 'Add Day & Time'
  * button 'Back'
  heading 'Add Day & Time'
  text 'Day'
  > button 'Day, 21 June 2030'
  * wheel 'Day, 21' 21 of 1 to 30
  * wheel 'Month, June' 6 of 1 to 12
  * wheel 'Year, 2030' 101 of 1 to 201
  * switch 'All Day' on
  text 'Units'
  * segments 'Units'
    tab 'Hours' selected
    tab 'Days'
    tab 'Weeks'
    tab 'Months'
    tab 'Years'
  text 'Trip Date of event, In a certain Hours'
  * button 'Next'
)"},
        {{"Add Event", "=Trip", "Next", "Next"}, "Reminder", R"(screen 'Add Reminder' disabled
dialog '“Tessivo” Would Like to Send You Notifications' modal
  text 'Notifications remind you of your events.'
  * button 'Don’t Allow'
  > button 'Allow'
)"},
        {{"Add Event", "=Trip", "Next", "Next"}, "Next", ""},
        {{"Add Event", "=Trip", "Next", "Next", "Next"}, "Next", ""},
        {{"%"}, card, R"(screen 'Tessivo' disabled
menu 'Menu' modal
  > item 'Edit'
  * item 'Share'
  * item 'Delete'
)"},
        {{"%", "Edit"}, card, ""},
        {{"%", "Edit", "Edit Title"}, card, ""},
        {{"%", "Edit", "Edit Day & Time"}, card, ""},
        {{"%", "Edit", "Edit Day & Time", "Repeat, Never"},
         "Repeat, Never",
         R"(screen 'Edit Day & Time' disabled
dialog 'Repeat' modal
  list 'Repeat'
    > choice 'Never' on
    * choice 'Every day' off
    * choice 'Every week' off
    * choice 'Every 2 weeks' off
    * choice 'Every month' off
    * choice 'Every year' off
)"},
        {{"%", "Edit", "Edit Reminder"}, card, R"(screen 'Edit Reminder'
  * button 'Back'
  heading 'Edit Reminder'
  text 'Reminder'
  > switch 'Reminder' on
  text 'Alert'
  * button 'Alert, 10 minutes before'
  text 'Reminder Message (4/50)'
  * field 'Reminder Message'
  * button 'Save'
)"},
        {{"%", "Edit", "Edit Reminder", "Alert, 10 minutes before"},
         "Alert, 10 minutes before",
         R"(screen 'Edit Reminder' disabled
dialog 'Alert' modal
  list 'Alert'
    * choice 'At time of event' off
    * choice '5 minutes before' off
    > choice '10 minutes before' on
    * choice '15 minutes before' off
    * choice '30 minutes before' off
    * choice '1 hour before' off
    * choice '2 hours before' off
    * choice '1 day before' off
    * choice '2 days before' off
    * choice '1 week before' off
)"},
        {{"%", "Edit", "Edit Background"}, card, R"(screen 'Edit Background'
  * button 'Back'
  heading 'Edit Background'
  text 'Preview'
  text 'Summer 25 June 2030, In 4 Days'
  text 'Photos'
  > button 'Photo Library'
  text 'Images'
  * button 'Image by Unsplash'
  text 'Colors'
  * list 'Colors'
    choice 'Color 1' off
    choice 'Color 2' off
    choice 'Color 3' off
    choice 'Color 4' off
    choice 'Color 5' on
    choice 'Color 6' off
  text 'Gradients'
  * list 'Gradients'
    choice 'Gradient 1' off
    choice 'Gradient 2' off
    choice 'Gradient 3' off
    choice 'Gradient 4' off
    choice 'Gradient 5' off
    choice 'Gradient 6' off
  * button 'Save'
)"},
        {{"%", "Edit", "Edit Background", "Image by Unsplash"}, "Image by Unsplash", ""},
        {{"%", "Delete"},
         card,
         "screen 'Tessivo' disabled\n"
         "dialog 'Are You Sure You Want\u2028 to Delete This Event?' modal\n"
         "  > button 'No'\n"
         "  * button 'Yes'\n"},
        {{"%", "Share"}, card, ""},
        {{card}, card, ""},
        {{card, "Menu"}, "Menu", ""},
        {{"Settings"}, "Settings", ""},
        {{"Settings", "Event Size, Medium"}, "Event Size, Medium", ""},
    };
    for (const auto& [way, back, expected] : screens) {
        start();
        SCOPED_TRACE(testing::PrintToString(way));
        for (const char* step : way)
            go(step);
        const Tree found = tree();
        if (*expected) {
            EXPECT_EQ(found.text, expected);
        }
        auto met = walk(Qt::Key_Tab);
        if (met.size() < endless) {
            const auto backwards = walk(Qt::Key_Backtab);
            EXPECT_THAT(std::vector(backwards.rbegin(), backwards.rend() - 1),
                        ElementsAreArray(met.begin() + 1, met.end()));
        }
        std::ranges::sort(met);
        for (const auto& stop : found.stops)
            EXPECT_TRUE(std::ranges::binary_search(met, stop)) << "Tab does not come to " << stop;
        key(Qt::Key_Escape);
        settle();
        EXPECT_EQ(focused().toStdString(), back);
    }
}

} // namespace
} // namespace tessivo
