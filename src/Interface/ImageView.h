#pragma once

#include "Interface/View.h"
#include "Ports/Bitmap.h"

namespace tessivo::ui {

using tessivo::Bitmap;

/// A picture of the program's resources by its name, or one that was loaded; empty of both is no picture.
struct Image {
    std::string name;
    std::shared_ptr<const Bitmap> bitmap;

    static Image named(std::string name) { return {std::move(name), nullptr}; }
    [[nodiscard]] bool isSet() const { return !name.empty() || bitmap; }

    friend bool operator==(const Image&, const Image&) = default;
};

enum class ContentMode { ScaleToFill, AspectFit, AspectFill, Center };

class ImageView final : public View {
public:
    using View::View;

    [[nodiscard]] const Image& image() const { return image_; }
    void setImage(Image image) {
        image_ = std::move(image);
        notify(ViewChange::Content);
    }
    [[nodiscard]] ContentMode contentMode() const { return contentMode_; }
    void setContentMode(ContentMode mode) {
        contentMode_ = mode;
        notify(ViewChange::Content);
    }
    [[nodiscard]] const ColorRef& tint() const { return tint_; }
    void setTint(ColorRef color) {
        tint_ = std::move(color);
        notify(ViewChange::Content);
    }

private:
    Image image_;
    ContentMode contentMode_ = ContentMode::ScaleToFill;
    ColorRef tint_;
};

} // namespace tessivo::ui
