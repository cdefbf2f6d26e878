// The part of the tour that goes through the photo browser.

#include "AddEventVC/ImagePickerController.h"
#include "AddEventVC/UnsplahImageView.h"
#include "Interface/CollectionView.h"
#include "Tour.h"
#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/UnsplashPicker.h"
#include "app/Composition.h"

#include <QQuickWindow>

#include <algorithm>

namespace tessivo::tour {
namespace {

/// Whether what was asked for is there: photos with their pictures, or the message that there are none.
bool isComplete(unsplash::UnsplashPickerViewController& screen) {
    const auto& cells = screen.collectionView.visibleCells();
    return screen.emptyView.superview() ||
           (!cells.empty() && std::ranges::all_of(cells, [](const auto& entry) {
               return static_cast<unsplash::PhotoCell&>(*entry.second).photoView.imageView.image().isSet();
           }));
}

} // namespace

template <class Screen>
Screen& Tour::waitForScreen() {
    const auto shown = [this] { return dynamic_cast<Screen*>(program_.stack().top()); };
    waitFor("a screen", [&] { return shown() != nullptr; });
    return *shown();
}

unsplash::UnsplashPickerViewController& Tour::photoScreen() const {
    return dynamic_cast<unsplash::UnsplashPicker&>(*program_.stack().top()).photoPickerViewController();
}

void Tour::waitForPhotos() {
    waitFor("photos", [this] { return isComplete(photoScreen()); });
    for (const auto& [item, cell] : photoScreen().collectionView.visibleCells())
        texts_.allow(
            QString::fromStdString(static_cast<unsplash::PhotoCell&>(*cell).photoView.userNameLabel.text()));
}

void Tour::openPhotos() {
    hand_.tap(nameOf("imagesButton"));
    waitForPhotos();
}

void Tour::searchPhotos(const QString& text) {
    const QString field = QString::fromStdString(photoScreen().searchController.searchBar.placeholder());
    hand_.tap(field);
    if (!photoScreen().searchController.searchBar.text().empty())
        hand_.tap(QString::fromStdString(photoScreen().searchController.clearButton.accessibilityName()));
    type(text);
    hand_.press(Qt::Key_Return);
    waitForPhotos();
}

void Tour::browsePhotos() {
    openPhotos();
    picture("photos");
    const QPointF photo(window_.width() / 2.0 - 80, window_.height() / 2.0); // beside the gap of two columns
    hand_.drag(photo, photo - QPointF(0, window_.height() / 3.0));
    waitForPhotos();
    picture("photos-scrolled");
    holdAt(photo);
    picture("photo-preview");
    hand_.tapAt(photo);
    searchPhotos(QStringLiteral("sea"));
    picture("photos-search");
    searchPhotos(QStringLiteral("none"));
    picture("photos-none");
    searchPhotos(QStringLiteral("error"));
    picture("photos-server-error");
    searchPhotos(QStringLiteral("lost"));
    picture("photos-offline");
    hand_.press(Qt::Key_Escape);
}

void Tour::choosePhoto() {
    openPhotos();
    const auto cell = photoScreen().collectionView.cellForItem(1);
    hand_.tap(QString::fromStdString(static_cast<unsplash::PhotoCell&>(*cell).photoView.accessibilityName()));
    waitForScreen<UnsplahImageView>();
    const QPointF middle(window_.width() / 2.0, window_.height() / 2.0);
    hand_.drag(middle + QPointF(80, 0), middle - QPointF(80, 0));
    picture("photo-crop");
    hand_.tap(nameOf("saveButton"));
    picture("background-photo");
}

void Tour::chooseFromLibrary() {
    hand_.tap(nameOf("photosButton"));
    const auto& picker = waitForScreen<ImagePickerController>();
    waitFor("the photo", [&] { return picker.imageView.image().isSet(); });
    const QPointF middle(window_.width() / 2.0, window_.height() / 2.0);
    hand_.drag(middle, middle - QPointF(0, 20));
    picture("photo-library");
    hand_.tap(nameOf("chooseButton"));
    picture("background-library");
}

void Tour::showPictureCards() {
    const QPointF center(window_.width() / 2.0, window_.height() / 2.0);
    const QPointF reach(0, window_.height() / 4.0);
    for (int pull = 0; pull < 3; ++pull)
        hand_.drag(center + reach, center - reach);
    picture("picture-cards");
    const int last = cards().numberOfItems() - 1;
    hand_.tapAt(middleOfCard(last));
    picture("full-library");
    goBack();
    for (int pull = 0; pull < 3; ++pull)
        hand_.drag(center + reach, center - reach);
    swipeCard(last);
    picture("picture-card-open");
    const QPointF middle = middleOfCard(last);
    hand_.drag(middle - QPointF(80, 0), middle + QPointF(100, 0));
}

} // namespace tessivo::tour
