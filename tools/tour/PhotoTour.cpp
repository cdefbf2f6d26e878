// The part of the tour that goes through the photo browser.

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

} // namespace tessivo::tour
