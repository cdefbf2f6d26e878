// The part of the tour that goes through the photo browser.

#include "AddEventVC/ImagePickerController.h"
#include "AddEventVC/UnsplahImageView.h"
#include "Interface/CollectionView.h"
#include "Tour.h"
#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/UnsplashPicker.h"
#include "app/Composition.h"

#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace tessivo::tour {
namespace {

constexpr int patience = 20'000; // ms

/// Whether what was asked for is there: photos with their pictures, or the word that there are none.
bool isComplete(unsplash::UnsplashPickerViewController& screen) {
    const auto& cells = screen.collectionView.visibleCells();
    return screen.emptyView.superview() ||
           (!cells.empty() && std::ranges::all_of(cells, [](const auto& entry) {
               return static_cast<unsplash::PhotoCell&>(*entry.second).photoView.imageView.image().isSet();
           }));
}

} // namespace

template <class Screen>
Screen& Tour::waitFor() {
    const auto shown = [this] { return dynamic_cast<Screen*>(program_.stack().top()); };
    if (!QTest::qWaitFor([&] { return shown() != nullptr; }, patience)) {
        qCritical("The screen does not come");
        std::exit(EXIT_FAILURE);
    }
    finger_.settle();
    return *shown();
}

unsplash::UnsplashPickerViewController& Tour::photoScreen() const {
    return dynamic_cast<unsplash::UnsplashPicker&>(*program_.stack().top()).photoPickerViewController();
}

void Tour::waitForPhotos() {
    if (!QTest::qWaitFor([this] { return isComplete(photoScreen()); }, patience)) {
        qCritical("The photos do not come");
        std::exit(EXIT_FAILURE);
    }
    finger_.settle();
}

void Tour::openPhotos() {
    finger_.tap(nameOf("imagesButton"));
    waitForPhotos();
}

void Tour::searchPhotos(const QString& text) {
    const QString field = QString::fromStdString(photoScreen().searchController.searchBar.placeholder());
    finger_.tap(field);
    if (!photoScreen().searchController.searchBar.text().empty())
        finger_.tap(QString::fromStdString(photoScreen().searchController.clearButton.accessibilityName()));
    finger_.type(text);
    finger_.press(Qt::Key_Return);
    waitForPhotos();
}

void Tour::browsePhotos() {
    openPhotos();
    picture("photos");
    const QPointF photo(window_.width() / 2.0 - 80, window_.height() / 2.0); // beside the gap of two columns
    finger_.drag(photo, photo - QPointF(0, window_.height() / 3.0));
    waitForPhotos();
    picture("photos-scrolled");
    finger_.hold(photo);
    picture("photo-preview");
    finger_.tapAt(photo);
    searchPhotos(QStringLiteral("sea"));
    picture("photos-search");
    searchPhotos(QStringLiteral("none"));
    picture("photos-none");
    searchPhotos(QStringLiteral("error"));
    picture("photos-server-error");
    searchPhotos(QStringLiteral("lost"));
    picture("photos-offline");
    finger_.press(Qt::Key_Escape);
}

void Tour::choosePhoto() {
    openPhotos();
    const auto cell = photoScreen().collectionView.cellForItem(1);
    finger_.tap(
        QString::fromStdString(static_cast<unsplash::PhotoCell&>(*cell).photoView.accessibilityName()));
    waitFor<UnsplahImageView>();
    const QPointF middle(window_.width() / 2.0, window_.height() / 2.0);
    finger_.drag(middle + QPointF(80, 0), middle - QPointF(80, 0));
    picture("photo-crop");
    finger_.tap(nameOf("saveButton"));
    picture("background-photo");
}

void Tour::chooseFromLibrary() {
    finger_.tap(nameOf("photosButton"));
    const auto& picker = waitFor<ImagePickerController>();
    if (!QTest::qWaitFor([&] { return picker.imageView.image().isSet(); }, patience)) {
        qCritical("The photo does not come: %s", picker.messageLabel.text().c_str());
        std::exit(EXIT_FAILURE);
    }
    const QPointF middle(window_.width() / 2.0, window_.height() / 2.0);
    finger_.drag(middle, middle - QPointF(0, 20));
    picture("photo-library");
    finger_.tap(nameOf("chooseButton"));
    picture("background-library");
}

void Tour::showPictureCards() {
    const QPointF center(window_.width() / 2.0, window_.height() / 2.0);
    const QPointF reach(0, window_.height() / 4.0);
    for (int pull = 0; pull < 3; ++pull)
        finger_.drag(center + reach, center - reach);
    picture("picture-cards");
    const int last = cards().numberOfItems() - 1;
    swipeCard(last);
    picture("picture-card-open");
    const QPointF middle = middleOfCard(last);
    finger_.drag(middle - QPointF(80, 0), middle + QPointF(100, 0));
}

} // namespace tessivo::tour
