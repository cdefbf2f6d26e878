#pragma once

#include "AddEventVC/ImagePickerController.h"
#include "AddEventVC/Label.h"
#include "AddEventVC/UnsplahImageView.h"
#include "AddEventVC/WizardScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"
#include "Interface/CollectionView.h"
#include "Ports/DateFormatter.h"
#include "UnsplashPicker/UnsplashPicker.h"

namespace tessivo {

/// The last step of the wizard: the background. Confirming it makes the event.
class EventBackgroundViewController final : public WizardScreen,
                                            public ui::CollectionViewDataSource,
                                            public ui::CollectionViewDelegate,
                                            public unsplash::UnsplashPickerDelegate,
                                            public FullScreenImageDelegate,
                                            public ImagePickerControllerDelegate {
public:
    explicit EventBackgroundViewController(SharedServices& services);

    std::optional<EventItem> eventData;
    /// The marked item of each strip.
    std::optional<int> selectedColorIndexPath;
    std::optional<int> selectedGradientIndexPath;
    /// The picture chosen on this screen, and its address; not yet in any file.
    std::optional<std::string> unsplashPath;
    ui::Image unsplashImage;
    Instant currentDate;

    EventView eventView;
    InfoLabel previewLabel{controls, "previewLabel", "Preview"};
    InfoLabel photosLabel{controls, "photosLabel", "Photos"};
    ui::Button photosButton{controls, "photosButton"};
    InfoLabel imagesLabel{controls, "imagesLabel", "Images"};
    ui::Button imagesButton{controls, "imagesButton"};
    InfoLabel colorsLabel{controls, "colorsLabel", "Solid Colors"};
    InfoLabel gradientsLabel{controls, "gradientsLabel", "Gradients"};
    ui::CollectionView colorCollection;
    ui::CollectionView gradientCollection;

    [[nodiscard]] std::string screenName() const override { return "EventBackgroundViewController"; }

    void doneButtonTapped();
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
    /// Takes the edited picture for the preview; without one the program stops.
    void imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                    const PickedMedia& info) override;
    void imagePickerControllerDidCancel(ImagePickerController& picker) override { picker.dismiss(); }

protected:
    void viewDidLoad() override;

private:
    void buildRow(ui::Button& row, std::string title);
    void buildStrip(ui::CollectionView& strip);
    void showDraft();
    void chooseColor(int row);
    void chooseGradient(int row);
    void reloadStrips();
    void showPreview(const unsplash::UnsplashPhoto& photo, const Url& url, ui::Image image);
    [[nodiscard]] Instant eventDay() const;
    [[nodiscard]] ui::GradientLayer* previewGradient() const;

    std::unique_ptr<DateFormatter> dateFormatter;
    std::unique_ptr<DateFormatter> eventFormatter;
};

} // namespace tessivo
