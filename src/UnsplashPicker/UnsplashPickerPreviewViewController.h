#pragma once

#include "Interface/ImageView.h"
#include "Interface/ViewController.h"

namespace tessivo::unsplash {

/// A photo of the grid, shown larger while it is pressed for long.
class UnsplashPickerPreviewViewController final : public ui::ViewController {
public:
    /// `photographer` is for assistive technology only.
    UnsplashPickerPreviewViewController(ui::WindowContext& window, ui::Image itsImage,
                                        std::string photographer)
        : ViewController(window), image(std::move(itsImage)), photographer_(std::move(photographer)) {}

    const ui::Image image;
    ui::ImageView imageView{controls, "imageView"};

    [[nodiscard]] std::string screenName() const override { return "UnsplashPickerPreviewViewController"; }

protected:
    void viewDidLoad() override {
        view().setAccessibilityName(photographer_);
        imageView.setContentMode(ui::ContentMode::AspectFit);
        imageView.setImage(image);
        view().addSubview(imageView);
        screenSizeDidChange();
    }
    void screenSizeDidChange() override { imageView.setFrame({0, 0, screen().width(), screen().height()}); }

private:
    const std::string photographer_;
};

} // namespace tessivo::unsplash
