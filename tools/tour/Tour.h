#pragma once

#include "Stage.h"
#include "TextInspection.h"
#include "hand/Hand.h"

#include <QDir>

namespace tessivo {
class Composition;
namespace ui {
class CollectionView;
class ViewController;
} // namespace ui
namespace unsplash {
class UnsplashPickerViewController;
}
} // namespace tessivo

namespace tessivo::tour {

/// One walk through the program on one stage, as a user would take it.
class Tour {
public:
    Tour(Composition& program, const Stage& stage, const QDir& pictures);

    void run();

private:
    enum class Picture { None, Service, Library };

    /// An event to make, and whether to take pictures on the way.
    struct Wish {
        const char* title;
        int days; ///< rows to turn each wheel by
        int months;
        int years;
        int unit;
        int color;    ///< item of the strip; -1 for none
        int gradient; ///< likewise
        bool inPictures;
        Picture picture = Picture::None; ///< in place of colour and gradient
    };

    /// The slides of the first run, by finger, keys and button.
    void takeFirstTour();
    /// Opens the settings with what they lead to.
    void useSettings();
    /// Opens cards, and looks at what their buttons and their menu lead to.
    void useCards();
    /// Opens an event over the whole screen, and each screen that changes it.
    void openEvent();
    /// Goes from the top screen to the list of future events.
    void goBack();
    /// Scrolls to the cards with pictures, opens the event of the last one, and swipes it open.
    void showPictureCards();
    /// Swipes a card open, with a picture on the way if it is named.
    void swipeCard(int item, const char* halfWay = nullptr);
    /// The list in front.
    [[nodiscard]] ui::CollectionView& cards() const;
    [[nodiscard]] QPointF middleOfCard(int item);
    void addEvent(const Wish& wish);
    void chooseDay(const Wish& wish);
    void chooseTimeAndRepeat(const Wish& wish);
    void chooseReminder(const Wish& wish);
    void chooseBackground(const Wish& wish);
    /// From the background step: looks through the photos and leaves without one.
    void browsePhotos();
    /// From the background step: a photo of the service, and one of the user's.
    void choosePhoto();
    void chooseFromLibrary();
    void openPhotos();
    void waitForPhotos();
    /// The screen on top, once it is of that kind.
    template <class Screen>
    Screen& waitForScreen();
    void searchPhotos(const QString& text);
    [[nodiscard]] unsplash::UnsplashPickerViewController& photoScreen() const;
    /// Presses a point until the long press has taken effect.
    void holdAt(QPointF point);
    /// Waits until nothing moves any more and no thread has work left.
    void settle();
    /// Waits until `done`; ends the tour if that never happens.
    void waitFor(const char* what, const std::function<bool()>& done);
    /// Types into what has the keyboard.
    void type(const QString& text);
    void turnWheel(QRectF rowAbove, int wheel, int rows);
    void tapBeside();
    void picture(const char* name);
    void pictureIf(bool wanted, const char* name);

    /// A text of the tables, in the stage's language.
    [[nodiscard]] QString said(const char* words) const;
    /// The screen on top, without a frame around it.
    [[nodiscard]] ui::ViewController& shown() const;
    /// What a screen reader says of a control of the top screen.
    [[nodiscard]] QString nameOf(const char* control) const;
    /// The same of a row that shows a value under its heading.
    [[nodiscard]] QString nameOfValue(const char* heading, const char* value) const;
    /// The same of a row of the settings.
    [[nodiscard]] QString nameOfRow(const char* section, int row) const;

    Composition& program_;
    const Stage& stage_;
    QDir pictures_;
    QQuickWindow& window_;
    Hand hand_;
    TextInspection texts_;
    int count_ = 0;
};

} // namespace tessivo::tour
