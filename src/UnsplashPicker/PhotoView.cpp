#include "UnsplashPicker/PhotoView.h"

#include "Interface/Animation.h"
#include "Interface/ViewController.h"

#include <array>
#include <charconv>

namespace tessivo::unsplash {
namespace {

constexpr Seconds dissolve{0.25};
constexpr double fadeHeight = 56;
constexpr double nameHeight = 32;
constexpr double nameInset = 12;

std::string nameOf(const UnsplashUser& user) {
    return user.firstName && user.lastName ? *user.firstName + " " + *user.lastName : user.username;
}

} // namespace

std::string decimalText(double width) {
    std::array<char, 400> text{};
    const auto [end, fault] =
        std::to_chars(text.data(), text.data() + text.size(), width, std::chars_format::fixed);
    std::string decimal(text.data(), end);
    return decimal.find('.') == std::string::npos ? decimal + ".0" : decimal;
}

PhotoView::PhotoView(ui::ControlRegistry& controls, PickerServices& services, ui::WindowContext& window)
    : View(controls, "photoView"),
      imageView(controls, "imageView"),
      gradientView(controls, "gradientView"),
      userNameLabel(controls, "userNameLabel"),
      window_(window),
      imageDownloader(services),
      overlayViews{&gradientView, &userNameLabel} {
    imageView.setContentMode(ui::ContentMode::AspectFill);
    imageView.setClipsToBounds(true);
    // Dark enough for the name to be read on a white picture.
    gradientView.setColors({{{0, 0, 0, 0}, 0}, {{0, 0, 0, 0.55}, 0.6}});
    userNameLabel.setFont({13, ui::FontWeight::Medium});
    userNameLabel.setTextColor(ui::ColorRef::white());
    for (ui::View* view : std::initializer_list<ui::View*>{&imageView, &gradientView, &userNameLabel})
        addSubview(*view);
}

void PhotoView::layoutSubviews() {
    const ui::Rect area = bounds();
    imageView.setFrame({0, 0, area.width, area.height});
    const double fade = std::min(fadeHeight, area.height);
    const double name = std::min(nameHeight, area.height);
    gradientView.setFrame({0, area.height - fade, area.width, fade});
    userNameLabel.setFrame({nameInset, area.height - name, area.width - 2 * nameInset, name});
}

void PhotoView::configure(const UnsplashPhoto& photo, bool showsUsername) {
    for (ui::View* view : overlayViews)
        view->setAlpha(showsUsername ? 1 : 0);
    userNameLabel.setText(nameOf(photo.user));
    setAccessibilityName(nameOf(photo.user));
    // The tint lies behind the picture as well, so that a picture that fades in fades from the tint.
    const auto tint = photo.color ? ui::ColorRef::of(*photo.color) : ui::ColorRef();
    imageView.setBackgroundColor(tint);
    setBackgroundColor(tint);
    currentPhotoID_ = photo.identifier;
    downloadImage(photo);
}

void PhotoView::downloadImage(const UnsplashPhoto& photo) {
    const auto regular = photo.urls.find(URLKind::regular);
    if (regular == photo.urls.end())
        return;
    layoutIfNeeded();
    const double scale = window_.screen.scale();
    const Url sized = regular->second.appendingQueryItem("w", decimalText(frame().width))
                          .appendingQueryItem("dpr", std::to_string(static_cast<int>(scale)));
    const auto received = [this, wanted = photo.identifier](const ui::Image& image, bool fromCache) {
        if (currentPhotoID_ == wanted)
            show(image, fromCache);
    };
    imageDownloader.download(sized, ui::pixelsCovering(frame().size(), scale), received);
}

void PhotoView::show(const ui::Image& image, bool fromCache) {
    imageView.setImage(image);
    if (fromCache)
        return;
    imageView.setAlpha(0);
    const auto fade = ui::PropertyAnimator::make(window_.animations, ui::EaseInOut{dissolve});
    fade->addAnimations([this] { imageView.setAlpha(1); });
    fade->startAnimation();
}

void PhotoView::prepareForReuse() {
    currentPhotoID_.reset();
    userNameLabel.setText("");
    imageView.setBackgroundColor(ui::ColorRef::clear());
    setBackgroundColor(ui::ColorRef::clear());
    imageView.setImage({});
    imageDownloader.cancel();
}

} // namespace tessivo::unsplash
