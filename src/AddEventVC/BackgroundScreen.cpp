#include "AddEventVC/BackgroundScreen.h"

#include "AddEventVC/BackgrounCell.h"
#include "AddEventVC/Palette.h"
#include "AddEventVC/UnsplashKeys.h"
#include "Event/EventItem.h"
#include "Interface/PictureLoader.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "UnsplashPicker/PickerServices.h"

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "BackgrounCell";
constexpr double swatchSpacing = 16;

std::unique_ptr<ui::LineLayout> stripLayout() {
    return std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Horizontal, swatchSpacing, swatchSpacing);
}

} // namespace

BackgroundScreen::BackgroundScreen(SharedServices& services, const char* colorHeading,
                                   std::optional<ui::Image> PickedMedia::*libraryPicture)
    : WizardScreen(services),
      currentDate(services.platform().clock.now()),
      colorsLabel(controls, "colorsLabel", localized(colorHeading)),
      colorCollection(controls, "colorCollection", stripLayout()),
      gradientCollection(controls, "gradientCollection", stripLayout()),
      libraryPicture_(libraryPicture) {}

void BackgroundScreen::buildRows() {
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { doneButtonTapped(); });
    buildRow(photosButton, localized("Photo Library"));
    photosButton.addTarget(ui::PressEvent::UpInside, [this] { photosButtonTapped(); });
    buildRow(imagesButton, localized("Image by Unsplash"));
    imagesButton.addTarget(ui::PressEvent::UpInside, [this] { imagesButtonTapped(); });
    for (ui::View* row : std::initializer_list<ui::View*>{
             &previewLabel, &card(), &photosLabel, &photosButton, &imagesLabel, &imagesButton, &colorsLabel,
             &colorCollection, &gradientsLabel, &gradientCollection})
        view().addSubview(*row);
    buildStrip(colorCollection);
    colorCollection.setAccessibilityName(colorsLabel.text());
    gradientCollection.setAccessibilityName(gradientsLabel.text());
    buildStrip(gradientCollection);
}

void BackgroundScreen::buildRow(ui::Button& row, std::string title) {
    row.setTitle(std::move(title));
    row.setFont({17, ui::FontWeight::Regular});
    row.setImageName("chevronNext");
    row.setTint(ui::ColorRef::black());
}

void BackgroundScreen::buildStrip(ui::CollectionView& strip) {
    strip.registerCell(reuseIdentifier, [] { return std::make_shared<BackgrounCell>(); });
    strip.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    strip.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    strip.setFrame({0, 0, screen().width(), BackgrounCell::side});
    strip.reloadData();
}

int BackgroundScreen::numberOfItems(ui::CollectionView& collection) {
    return static_cast<int>(&collection == &colorCollection ? sectionsColor.size() : sectionsGradient.size());
}

std::shared_ptr<ui::CollectionViewCell> BackgroundScreen::cellForItem(ui::CollectionView& collection,
                                                                      int item) {
    const auto cell =
        std::static_pointer_cast<BackgrounCell>(collection.dequeueReusableCell(reuseIdentifier));
    const char* kind = &collection == &colorCollection ? "Color " : "Gradient ";
    cell->setAccessibilityName(localized(kind) + std::to_string(item + 1));
    if (&collection == &colorCollection) {
        cell->showColor(colorItemAt(item, platform().console));
        cell->setMarked(selectedColorIndexPath == item);
    } else {
        cell->showGradient(gradientItemAt(item, platform().console), platform().colors, platform().console);
        cell->setMarked(selectedGradientIndexPath == item);
    }
    return cell;
}

ui::Size BackgroundScreen::sizeForItem(ui::CollectionView&, int) {
    return {BackgrounCell::side, BackgrounCell::side};
}

void BackgroundScreen::didSelectItem(ui::CollectionView& collection, int item) {
    if (&collection == &colorCollection)
        chooseColor(item);
    else
        chooseGradient(item);
}

ui::GradientLayer* BackgroundScreen::previewGradient() {
    return card().sublayers().empty() ? nullptr : card().sublayers().front().get();
}

void BackgroundScreen::chooseColor(int row) {
    card().photoView.setImage({});
    if (auto* gradient = previewGradient())
        gradient->setHidden(true);
    card().setBackgroundColor(ui::ColorRef::named(colorItemAt(row, platform().console).color));
    take({static_cast<std::int16_t>(row), NO_VALUE, {}, {}});
    mark(row, std::nullopt);
}

void BackgroundScreen::chooseGradient(int row) {
    card().photoView.setImage({});
    if (auto* gradient = previewGradient()) {
        gradient->setHidden(false);
        applyGradientItem(*gradient, gradientItemAt(row, platform().console), platform().colors,
                          platform().console);
    }
    take({NO_VALUE, static_cast<std::int16_t>(row), {}, {}});
    mark(std::nullopt, row);
}

void BackgroundScreen::choosePicture(Choice choice, const ui::Image& picture) {
    take(std::move(choice));
    card().photoView.setImage(picture);
    mark(std::nullopt, std::nullopt);
}

void BackgroundScreen::mark(std::optional<int> color, std::optional<int> gradient) {
    selectedColorIndexPath = color;
    selectedGradientIndexPath = gradient;
    colorCollection.reloadData();
    gradientCollection.reloadData();
}

void BackgroundScreen::photosButtonTapped() {
    ImagePickerController::open(services(), *this, weakSelf<ImagePickerControllerDelegate>(this));
}

void BackgroundScreen::imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                                  const PickedMedia& info) {
    const auto& photo = info.*libraryPicture_;
    if (!photo)
        platform().console.stopProgram("The photo library gave no picture.");
    const bool hasAddress = info.imageURL && Url::parse(*info.imageURL);
    card().photoView.setContentMode(ui::ContentMode::AspectFill);
    choosePicture({NO_VALUE, NO_VALUE, hasAddress ? info.imageURL : std::nullopt, {}}, *photo);
    picker.dismiss();
}

void BackgroundScreen::imagesButtonTapped() {
    unsplash::UnsplashPickerConfiguration configuration(services().photoPicker().configuration().apiURL());
    configuration.accessKey = unsplashAccessKey;
    configuration.secretKey = unsplashSecretKey;
    configuration.query.reset();
    configuration.allowsMultipleSelection = false;
    configuration.contentFilterLevel = unsplash::ContentFilterLevel::low;
    const auto picker = unsplash::UnsplashPicker::make(services().photoPicker(), services().window(),
                                                       std::move(configuration));
    picker->photoPickerDelegate = weakSelf<unsplash::UnsplashPickerDelegate>(this);
    present(picker);
}

void BackgroundScreen::photoPickerDidSelect(unsplash::UnsplashPicker&, const unsplash::Photos& photos) {
    if (photos.empty())
        return;
    const auto& photo = photos.front();
    const auto regular = photo->urls.find(unsplash::URLKind::regular);
    if (regular == photo->urls.end())
        return;
    const Url url = regular->second;
    services().pictureLoader().load(
        {.http = {.url = url.absoluteString()},
         .covering = UnsplahImageView::pixelsDrawn(screen()),
         .cache = nullptr,
         .failureLine = {}},
        [weak = weak_from_this(), photo, url](const std::shared_ptr<const Bitmap>& picture, bool) {
            const auto self = std::static_pointer_cast<BackgroundScreen>(weak.lock());
            if (self && picture)
                self->showPreview(*photo, url, {{}, picture});
        });
}

void BackgroundScreen::showPreview(const unsplash::UnsplashPhoto& photo, const Url& url, ui::Image image) {
    const auto preview = std::make_shared<UnsplahImageView>(services());
    preview->delegate = weakSelf<FullScreenImageDelegate>(this);
    preview->unsplash = std::move(image);
    preview->urlString = url.absoluteString();
    preview->photographer = photo.user.name;
    if (const auto html = photo.user.links.find(unsplash::UserLinkKind::html); html != photo.user.links.end())
        preview->profileURL = html->second;
    show(preview);
}

void BackgroundScreen::didCrop(const ui::Image& image, const std::optional<std::string>& urlString) {
    unsplashPath = urlString;
    unsplashImage = image;
    choosePicture({NO_VALUE, NO_VALUE, {}, urlString}, image);
}

} // namespace tessivo
