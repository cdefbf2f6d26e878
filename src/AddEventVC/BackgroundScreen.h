#pragma once

#include "AddEventVC/ImagePickerController.h"
#include "AddEventVC/Label.h"
#include "AddEventVC/UnsplahImageView.h"
#include "AddEventVC/WizardScreen.h"
#include "Extension/PreviewView.h"
#include "Interface/CollectionView.h"
#include "UnsplashPicker/UnsplashPicker.h"

namespace tessivo {

/// The background of an event, in the wizard and on the edit screen: strips of colours and gradients, the
/// user's photos and those of the photo service, beside a card that wears each choice at once.
class BackgroundScreen : public WizardScreen,
                         public ui::CollectionViewDataSource,
                         public ui::CollectionViewDelegate,
                         public unsplash::UnsplashPickerDelegate,
                         public FullScreenImageDelegate,
                         public ImagePickerControllerDelegate {
public:
    /// `libraryPicture` is the one of the library's pictures that the card wears.
    BackgroundScreen(SharedServices& services, const char* colorHeading,
                     std::optional<ui::Image> PickedMedia::*libraryPicture);

    /// The marked item of each strip.
    std::optional<int> selectedColorIndexPath;
    std::optional<int> selectedGradientIndexPath;
    /// The picture chosen on this screen, and its address; not yet in any file.
    std::optional<std::string> unsplashPath;
    ui::Image unsplashImage;
    Instant currentDate;

    InfoLabel previewLabel{controls, "previewLabel", localized("Preview")};
    InfoLabel photosLabel{controls, "photosLabel", localized("Photos")};
    ui::Button photosButton{controls, "photosButton"};
    InfoLabel imagesLabel{controls, "imagesLabel", localized("Images")};
    ui::Button imagesButton{controls, "imagesButton"};
    InfoLabel colorsLabel;
    InfoLabel gradientsLabel{controls, "gradientsLabel", localized("Gradients")};
    ui::CollectionView colorCollection;
    ui::CollectionView gradientCollection;

    virtual void doneButtonTapped() = 0;
    /// Opens the user's photo library.
    void photosButtonTapped();
    /// Opens the photo browser.
    void imagesButtonTapped();

    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collection, int item) override;
    void didSelectItem(ui::CollectionView& collection, int item) override;
    /// Downloads the photo and offers it for cropping; nothing happens where that fails.
    void photoPickerDidSelect(unsplash::UnsplashPicker& picker, const unsplash::Photos& photos) override;
    void photoPickerDidCancel(unsplash::UnsplashPicker&) override {}
    void didCrop(const ui::Image& image, const std::optional<std::string>& urlString) override;
    /// Shows the picked photo on the card; without a picture the program stops.
    void imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                    const PickedMedia& info) override;
    void imagePickerControllerDidCancel(ImagePickerController& picker) override { picker.dismiss(); }

protected:
    /// The four values of a background; at most one of them says something.
    struct Choice {
        std::int16_t color;
        std::int16_t gradient;
        std::optional<std::string> photoPath;
        std::optional<std::string> unsplashPath;
    };

    /// Builds the rows and the strips, with the marks as they are set by then, under the card.
    void buildRows();

    [[nodiscard]] virtual PreviewView& card() = 0;
    /// The user has chosen: takes it into the event that is being made or changed.
    virtual void take(Choice choice) = 0;

private:
    void buildRow(ui::Button& row, std::string title);
    void buildStrip(ui::CollectionView& strip);
    void chooseColor(int row);
    void chooseGradient(int row);
    /// Takes a picture, which no strip marks.
    void choosePicture(Choice choice, const ui::Image& picture);
    void mark(std::optional<int> color, std::optional<int> gradient);
    void showPreview(const unsplash::UnsplashPhoto& photo, const Url& url, ui::Image image);
    [[nodiscard]] ui::GradientLayer* previewGradient();

    std::optional<ui::Image> PickedMedia::*const libraryPicture_;
};

} // namespace tessivo
