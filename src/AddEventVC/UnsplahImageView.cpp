#include "AddEventVC/UnsplahImageView.h"

#include "AddEventVC/PictureCrop.h"
#include "Extension/EventView.h"
#include "Interface/PictureLoader.h"
#include "Ports/Console.h"
#include "Ports/LinkOpener.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr double buttonRowHeight = 56;
constexpr double gapUnderButtons = 5;

} // namespace

void UnsplahImageView::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::white());
    view().setAccessibilityName(localized("Picture"));
    prevButton.setImageName("chevron.backward");
    prevButton.setTint(ui::ColorRef::named("button"));
    prevButton.setAccessibilityName(localized("Back"));
    prevButton.addTarget(ui::PressEvent::UpInside, [this] { prevButtonTapped(); });
    saveButton.setTitle(localized("Save"));
    saveButton.setFont({17, ui::FontWeight::Medium});
    saveButton.setTitleColor(ui::ColorRef::named("button"));
    saveButton.addTarget(ui::PressEvent::UpInside, [this] { saveButtonTapped(); });
    photographerButton.setTitle(photographer.value_or(""));
    if (!photographer)
        photographerButton.setAccessibilityName(localized("Photographer"));
    photographerButton.setTitleColor(ui::ColorRef::white());
    photographerButton.setImageName("photographer");
    photographerButton.setBackgroundColor(ui::ColorRef::black());
    photographerButton.setCornerRadius(4);
    photographerButton.addTarget(ui::PressEvent::UpInside, [this] { linkPhoto(); });
    unsplashImage.setContentMode(ui::ContentMode::AspectFit);
    unsplashImage.setImage(unsplash);
    scrollView.addSubview(contentView);
    contentView.addSubview(unsplashImage);
    for (ui::View* part : std::initializer_list<ui::View*>{&scrollView, &cardFrame, &prevButton, &saveButton,
                                                           &photographerButton})
        view().addSubview(*part);
    screenSizeDidChange();
}

void UnsplahImageView::screenSizeDidChange() {
    const double top = buttonRowHeight + gapUnderButtons;
    const double height = screen().height() - top;
    scrollView.setFrame({0, top, screen().width(), height});
    const double width =
        unsplash.bitmap ? height * unsplash.bitmap->width / unsplash.bitmap->height : screen().width();
    contentView.setFrame({0, 0, width, height});
    unsplashImage.setFrame({0, 0, width, height});
    scrollView.setContentSize({width, height});
    cardFrame.setFrame(framed({width, height}));
}

ui::Rect UnsplahImageView::framed(const ui::Size& picture) const {
    // The card shows the middle of what is saved, cut to its own shape.
    const ui::Size card = EventView::sizeOn(screen());
    const ui::Rect view = scrollView.frame();
    const double factor =
        std::min(std::min(picture.width, view.width) / card.width, view.height / card.height);
    const ui::Size frame{card.width * factor, card.height * factor};
    return {view.midX() - frame.width / 2, view.midY() - frame.height / 2, frame.width, frame.height};
}

PixelSize UnsplahImageView::pixelsDrawn(const ui::MainScreen& screen) {
    return ui::pixelsCovering({0, screen.height()}, screen.scale());
}

void UnsplahImageView::linkPhoto() {
    if (!profileURL)
        return;
    const Url credited =
        profileURL->appendingQueryItem("utm_source", "Tessivo").appendingQueryItem("utm_medium", "referral");
    platform().links.open(credited.absoluteString());
}

ui::Rect UnsplahImageView::visiblePart(const Bitmap& picture) const {
    const ui::Rect visible = scrollView.convertTo(unsplashImage, scrollView.bounds());
    const ui::Size whole = unsplashImage.bounds().size();
    return {visible.x * (picture.width / whole.width), visible.y * (visible.height / whole.height),
            visible.width / whole.width * picture.width, visible.height / whole.height * picture.height};
}

void UnsplahImageView::saveButtonTapped() {
    if (!unsplash.isSet())
        platform().console.stopProgram("There is no picture to crop.");
    if (unsplash.bitmap) {
        const auto part = cropped(*unsplash.bitmap, visiblePart(*unsplash.bitmap));
        const auto listener = delegate.lock();
        if (part && listener)
            listener->didCrop({{}, part}, urlString);
    }
    dismiss();
}

} // namespace tessivo
