#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/MainScreen.h"
#include "UnsplashPicker/GradientView.h"
#include "UnsplashPicker/ImageDownloader.h"
#include "UnsplashPicker/UnsplashPhoto.h"

#include <array>

namespace tessivo::ui {
struct WindowContext;
}

namespace tessivo::unsplash {

/// A photo with its photographer's name. While the picture is on its way, the photo's own tint stands in.
class PhotoView final : public ui::View {
public:
    PhotoView(ui::ControlRegistry& controls, PickerServices& services, ui::WindowContext& window);

    ui::ImageView imageView;
    GradientView gradientView;
    ui::Label userNameLabel;

    /// Shows `photo`, with its name or without. The view must have its size: the service is asked for a
    /// picture of that width.
    void configure(const UnsplashPhoto& photo, bool showsUsername);
    void prepareForReuse();
    /// A picture of the cache whose turn has not come yet is not worth decoding any more.
    void willLeaveScreen() { imageDownloader.cancelUnlessFetching(); }

    /// The photo shown at the moment.
    [[nodiscard]] const std::optional<std::string>& currentPhotoID() const { return currentPhotoID_; }

protected:
    void layoutSubviews() override;

private:
    void downloadImage(const UnsplashPhoto& photo);
    void show(const ui::Image& image, bool fromCache);

    ui::WindowContext& window_;
    ImageDownloader imageDownloader;
    std::optional<std::string> currentPhotoID_;
    std::array<ui::View*, 2> overlayViews;
};

/// `width` with at least one digit after the point, as the service's addresses have it: "166.0".
[[nodiscard]] std::string decimalText(double width);

} // namespace tessivo::unsplash
