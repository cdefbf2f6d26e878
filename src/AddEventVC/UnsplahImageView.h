#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/ScrollView.h"
#include "Ports/ImageCoding.h"
#include "Ports/Url.h"
#include "Support/Screen.h"

namespace tessivo {

/// Takes the part of a picture that the user has kept. Held weakly.
class FullScreenImageDelegate {
public:
    virtual ~FullScreenImageDelegate() = default;
    virtual void didCrop(const ui::Image& image, const std::optional<std::string>& urlString) = 0;
};

/// A chosen picture of the photo service at full height, to be scrolled sideways: what is in view is saved,
/// and the part of it in the frame is what the event's card will show. Names the photographer.
class UnsplahImageView final : public Screen {
public:
    using Screen::Screen;

    std::weak_ptr<FullScreenImageDelegate> delegate;
    ui::Image unsplash;
    std::optional<std::string> photographer;
    std::optional<std::string> urlString;
    std::optional<Url> profileURL;

    ui::ScrollView scrollView{controls, "scrollView"};
    ui::View contentView{controls, "contentView"};
    ui::ImageView unsplashImage{controls, "unsplashImage"};
    /// What the card will show of what is in view.
    ui::View cardFrame{controls, "cardFrame"};
    ui::Button photographerButton{controls, "photographerButton"};
    ui::Button saveButton{controls, "saveButton"};
    ui::Button prevButton{controls, "prevButton"};

    [[nodiscard]] std::string screenName() const override { return "UnsplahImageView"; }

    /// What this screen draws of a picture: all of its height.
    [[nodiscard]] static PixelSize pixelsDrawn(const ui::MainScreen& screen);

    /// Opens the photographer's page.
    void linkPhoto();
    /// Hands on what is in view, and closes. Without a picture the program stops.
    void saveButtonTapped();
    void prevButtonTapped() { dismiss(); }

protected:
    void viewDidLoad() override;
    void screenSizeDidChange() override;

private:
    [[nodiscard]] ui::Rect framed(const ui::Size& picture) const;
    /// What is in view, in pixels of the picture.
    [[nodiscard]] ui::Rect visiblePart(const Bitmap& picture) const;
};

} // namespace tessivo
