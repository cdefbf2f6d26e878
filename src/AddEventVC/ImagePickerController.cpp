#include "AddEventVC/ImagePickerController.h"

#include "AddEventVC/PictureCrop.h"
#include "Extension/EventView.h"
#include "Ports/Console.h"
#include "Ports/ImageCoding.h"
#include "Support/EventImages.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr double maximumZoom = 4;
constexpr double barHeight = 56;
constexpr double keptQuality = 1;

} // namespace

void ImagePickerController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::black());
    titleLabel.setText(localized("Move and Scale"));
    view().setAccessibilityName(titleLabel.text());
    titleLabel.setFont({17, ui::FontWeight::Semibold});
    titleLabel.setTextColor(ui::ColorRef::white());
    messageLabel.setNumberOfLines(0);
    messageLabel.setTextColor(ui::ColorRef::white());
    messageLabel.setAlignment(ui::TextAlignment::Center);
    imageView.setAccessibilityName(localized("Photo"));
    const auto offer = [this](ui::Button& button, const char* title, ui::FontWeight weight) {
        button.setTitle(localized(title));
        button.setFont({17, weight});
        button.setTitleColor(ui::ColorRef::white());
    };
    offer(cancelButton, "Cancel", ui::FontWeight::Regular);
    offer(libraryButton, "Photo Library", ui::FontWeight::Regular);
    offer(chooseButton, "Choose", ui::FontWeight::Semibold);
    cancelButton.addTarget(ui::PressEvent::UpInside, [this] { cancelButtonTapped(); });
    libraryButton.addTarget(ui::PressEvent::UpInside, [this] { libraryButtonTapped(); });
    chooseButton.addTarget(ui::PressEvent::UpInside, [this] { chooseButtonTapped(); });
    chooseButton.setHidden(true);
    cropView.addSubview(imageView);
    cropView.setZoomedView(&imageView);
    for (ui::View* part : std::initializer_list<ui::View*>{&cropView, &titleLabel, &messageLabel,
                                                           &cancelButton, &libraryButton, &chooseButton})
        view().addSubview(*part);
    screenSizeDidChange();
}

void ImagePickerController::open(SharedServices& services, ui::ViewController& presenter,
                                 std::weak_ptr<ImagePickerControllerDelegate> delegate) {
    const auto chosen = [&services, weak = presenter.weak_from_this(),
                         delegate = std::move(delegate)](const PhotoLibrary::Choice& choice) {
        const auto below = weak.lock();
        const bool isTurnedDown = choice && !choice.value();
        if (!below || below->presentedViewController() || isTurnedDown)
            return;
        const auto picker = std::make_shared<ImagePickerController>(services);
        picker->delegate = delegate;
        below->present(picker);
        picker->take(choice);
    };
    services.platform().photoLibrary.choosePhoto(chosen);
}

void ImagePickerController::take(const PhotoLibrary::Choice& choice) {
    if (!choice)
        tell(choice.error().description);
    else if (choice.value())
        load(*choice.value());
}

void ImagePickerController::load(const Url& url) {
    const ui::Size drawn{cropView.frame().width * maximumZoom, cropView.frame().height * maximumZoom};
    const int choice = ++choices_;
    const auto read = [this, choice, alive = weak_from_this()](ui::Image photo) {
        if (alive.expired() || choice != choices_)
            return;
        if (photo.isSet())
            return showPhoto(std::move(photo));
        platform().console.print("Не удалось загрузить изображение.");
        tell("This photo cannot be shown.");
    };
    services().eventImages().loadPhoto(url.absoluteString(), drawn, read);
}

void ImagePickerController::showPhoto(ui::Image photo) {
    messageLabel.setText("");
    imageView.setImage(std::move(photo));
    chooseButton.setHidden(false);
    screenSizeDidChange();
}

void ImagePickerController::tell(std::string_view message) {
    imageView.setImage({});
    chooseButton.setHidden(true);
    messageLabel.setText(localized(message));
}

void ImagePickerController::screenSizeDidChange() {
    const ui::Size card = EventView::sizeOn(screen());
    const double room = screen().height() - 2 * barHeight;
    cropView.setFrame({(screen().width() - card.width) / 2,
                       barHeight + std::max(0.0, (room - card.height) / 2), card.width, card.height});
    const auto& picture = imageView.image().bitmap;
    if (!picture)
        return;
    // At the smallest, the photo just covers the frame.
    const double factor = std::max(card.width / picture->width, card.height / picture->height);
    const ui::Size whole{picture->width * factor, picture->height * factor};
    cropView.setZoomedContent(whole, maximumZoom);
    cropView.setContentOffset({(whole.width - card.width) / 2, (whole.height - card.height) / 2});
}

std::optional<ui::Image> ImagePickerController::framedPart() const {
    const auto& picture = imageView.image().bitmap;
    const ui::Rect seen = cropView.convertTo(imageView, cropView.bounds());
    const double scale = picture->width / imageView.bounds().width;
    auto part = cropped(*picture, {seen.x * scale, seen.y * scale, seen.width * scale, seen.height * scale});
    if (!part)
        return std::nullopt;
    return ui::Image{{}, std::move(part)};
}

void ImagePickerController::cancelButtonTapped() {
    if (const auto listener = delegate.lock())
        listener->imagePickerControllerDidCancel(*this);
}

void ImagePickerController::chooseButtonTapped() {
    const auto listener = delegate.lock();
    if (!listener)
        return;
    const auto part = framedPart();
    const auto data = part ? platform().images.jpeg(*part->bitmap, keptQuality) : std::nullopt;
    if (!data)
        return tell("This photo cannot be shown.");
    const auto address = platform().photoLibrary.keep(*data);
    if (!address)
        return tell(address.error().description);
    listener->imagePickerControllerDidFinishPickingMedia(
        *this, {imageView.image(), part, address.value().absoluteString()});
}

void ImagePickerController::libraryButtonTapped() {
    platform().photoLibrary.choosePhoto([this, alive = weak_from_this()](const PhotoLibrary::Choice& choice) {
        if (!alive.expired())
            take(choice); // with nothing chosen, the photo that was chosen before stays
    });
}

} // namespace tessivo
