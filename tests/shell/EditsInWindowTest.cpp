#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/UnsplashPicker.h"
#include "shell/ProgramWindow.h"
#include "support/Events.h"

#include <QImage>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <ostream>
#include <stdexcept>

namespace tessivo {
namespace {

enum class Acts { Touch, Keyboard };
enum class From { List, FullScreen };

struct Way {
    Acts acts;
    From from;
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << (way.acts == Acts::Touch ? "by touch" : "by the keyboard")
         << (way.from == From::List ? " from the list" : " from the full screen");
}

/// Whether a person sees the same. Through OpenGL a glyph may move by a fraction of a pixel.
bool lookAlike(const QImage& one, const QImage& other) {
    constexpr int visible = 64; // of 255, in one colour
    constexpr int pixels = 8;
    if (one.size() != other.size())
        return false;
    int apart = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            apart += std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                               std::abs(a.blue() - b.blue())}) > visible;
        }
    }
    return apart < pixels;
}

/// The program with the one stored event "Summer", and all acts done in the way that is the test's parameter.
/// The keyboard finds what it presses by Tab alone.
class EditsInWindowTest : public testing::TestWithParam<Way>, protected ProgramWindow {
protected:
    EditsInWindowTest() {
        const EventRecord summer = summerRecord();
        NotificationRequest reminder{summer.id->uuidString(), {*summer.title, *summer.remMess, true}, {}};
        reminder.trigger.dateComponents = {
            .year = 2030, .month = 6, .day = 25, .hour = 18, .minute = 20, .second = 0};
        EXPECT_EQ(queue.setAuthorization(AuthorizationStatus::Authorized), std::nullopt);
        EXPECT_EQ(queue.add(reminder), std::nullopt);
        store(summer);
        start();
    }

    [[nodiscard]] static bool byTouch() { return GetParam().acts == Acts::Touch; }

    void press(const std::string& name) {
        if (byTouch()) {
            hand->tap(QString::fromStdString(name));
        } else {
            reach(name);
            key(Qt::Key_Return);
        }
        settle();
    }

    void openEdit(const std::string& title) {
        if (GetParam().from == From::FullScreen) {
            press(cardName());
            press("Menu");
        } else if (byTouch()) {
            const QPointF middle = cardPlace().center();
            hand->drag(middle + QPointF(100, 0), middle - QPointF(80, 0));
            settle();
        } else {
            reach(cardName());
            key(Qt::Key_Menu);
            settle();
        }
        press("Edit");
        press(title);
    }

    void changeTitle() {
        if (byTouch()) {
            hand->tap(QStringLiteral("Add a title"));
            hand->commit(QStringLiteral("x"));
        } else {
            key(Qt::Key_End);
            key(Qt::Key_X);
        }
    }

    void moveDayAhead() {
        press("Day, 25 June 2030");
        if (byTouch()) {
            constexpr double oneRow = 36 + 12; // and what tells a drag from a tap
            const QPointF wheel = hand->placeOf(QStringLiteral("Day, 25")).center();
            hand->drag(wheel, wheel - QPointF(0, oneRow));
            settle();
        } else {
            reach("Day, 25");
            key(Qt::Key_Down);
        }
    }

    void remindAnHourBefore() {
        press("Alert, 10 minutes before");
        press("1 hour before");
        if (byTouch())
            hand->tapAt({window().width() / 2.0, 40}); // beside the sheet
        else
            key(Qt::Key_Escape);
        settle();
    }

    void chooseColor() {
        if (byTouch()) {
            press("Color 2");
        } else {
            reach("Color 1");
            key(Qt::Key_Right);
            key(Qt::Key_Return);
        }
    }

    void choosePhoto() {
        press("Image by Unsplash");
        const auto& browser = dynamic_cast<unsplash::UnsplashPicker&>(*program->stack().top())
                                  .photoPickerViewController()
                                  .collectionView;
        press(static_cast<unsplash::PhotoCell&>(*browser.cellForItem(1)).photoView.accessibilityName());
        press("Save");
    }

    [[nodiscard]] const ui::CollectionViewCell& card() const {
        if (cards().numberOfItems() != 1)
            throw std::runtime_error("The event is not in the list");
        return *cards().cellForItem(0);
    }
    [[nodiscard]] std::string cardName() const { return card().accessibilityName(); }
    [[nodiscard]] QRectF cardPlace() const { return hand->placeOf(QString::fromStdString(cardName())); }
    [[nodiscard]] QImage cardPicture() const {
        const double scale = window().effectiveDevicePixelRatio();
        const QRectF place = cardPlace().adjusted(6, 6, -6, -6); // inside the ring of the keyboard
        return window().grabWindow().copy(QRectF(place.topLeft() * scale, place.size() * scale).toRect());
    }

    /// What is pending, with its time.
    [[nodiscard]] std::string reminders() {
        std::string told;
        for (const auto& [sequence, request] : *queue.pending().value()) {
            const auto& when = request.trigger.dateComponents;
            told += request.content.title + "/" + request.content.body + " " +
                    std::to_string(when.day.value_or(0)) + "." + std::to_string(when.month.value_or(0)) +
                    ". " + std::to_string(when.hour.value_or(0)) + ":" +
                    std::to_string(when.minute.value_or(0));
        }
        return told;
    }
};

TEST_P(EditsInWindowTest, EachEditShowsOnTheCardMovesTheReminderAndSurvivesARestart) {
    const struct {
        const char* edit;
        std::function<void()> change;
        const char* card;
        bool looksNew;
        const char* reminders;
    } edits[] = {
        {"Edit Title", [this] { changeTitle(); }, "Summerx, 25 June 2030", true, "Summerx/Pack 25.6. 18:20"},
        {"Edit Day & Time", [this] { moveDayAhead(); }, "Summerx, 26 June 2030", true,
         "Summerx/Pack 26.6. 18:20"},
        {"Edit Reminder", [this] { remindAnHourBefore(); }, "Summerx, 26 June 2030", false,
         "Summerx/Pack 26.6. 17:30"},
        {"Edit Background", [this] { chooseColor(); }, "Summerx, 26 June 2030", true,
         "Summerx/Pack 26.6. 17:30"},
        {"Edit Background", [this] { choosePhoto(); }, "Summerx, 26 June 2030", true,
         "Summerx/Pack 26.6. 17:30"},
    };
    for (const auto& [edit, change, name, looksNew, pending] : edits) {
        SCOPED_TRACE(edit);
        const QImage before = cardPicture();
        openEdit(edit);
        change();
        press("Save");
        EXPECT_TRUE(cardName().starts_with(name)) << cardName();
        const QImage after = cardPicture();
        EXPECT_EQ(lookAlike(after, before), !looksNew);
        EXPECT_EQ(reminders(), pending);
        const std::string saved = cardName();
        start();
        EXPECT_EQ(cardName(), saved);
        EXPECT_TRUE(lookAlike(cardPicture(), after));
        EXPECT_EQ(reminders(), pending);
    }
}

TEST_P(EditsInWindowTest, EscapeLeavesEachScreenAndChangesNothing) {
    const auto top = [this] { return program->stack().top()->screenName(); };
    press("Future");
    press(cardName());
    EXPECT_EQ(top(), "FullEventViewController");
    key(Qt::Key_Escape);
    settle();
    EXPECT_EQ(top(), "CustomTabBarController");
    openEdit("Edit Title");
    changeTitle();
    EXPECT_EQ(top(), "EditEventTitleViewController");
    key(Qt::Key_Escape);
    settle();
    if (GetParam().from == From::FullScreen) {
        EXPECT_EQ(top(), "FullEventViewController");
        key(Qt::Key_Escape);
        settle();
    }
    EXPECT_EQ(top(), "CustomTabBarController");
    EXPECT_TRUE(cardName().starts_with("Summer, 25 June 2030")) << cardName();
    EXPECT_EQ(reminders(), "Summer/Pack 25.6. 18:20");
}

INSTANTIATE_TEST_SUITE_P(Ways, EditsInWindowTest,
                         testing::Values(Way{Acts::Touch, From::List}, Way{Acts::Touch, From::FullScreen},
                                         Way{Acts::Keyboard, From::List},
                                         Way{Acts::Keyboard, From::FullScreen}));

} // namespace
} // namespace tessivo
