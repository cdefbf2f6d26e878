#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/ScrollView.h"
#include "Ports/Error.h"
#include "Support/Screen.h"

#include <optional>
#include <string>

namespace tessivo {

class ImagePickerController;

/// What the user has taken from the photo library. A source may leave out any of it.
struct PickedMedia {
    std::optional<ui::Image> originalImage;
    std::optional<ui::Image> editedImage; ///< the part that was in the frame
    std::optional<std::string> imageURL;  ///< of the file, as the library gave it
};

/// Hears how the photo library was left, and takes its screen away. Held weakly.
class ImagePickerControllerDelegate {
public:
    virtual ~ImagePickerControllerDelegate() = default;
    virtual void imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                            const PickedMedia& info) = 0;
    virtual void imagePickerControllerDidCancel(ImagePickerController& picker) = 0;
};

/// The user's photo library: the desktop's chooser opens as soon as the screen stands; the chosen photo then
/// lies under a frame of a card's shape, to be moved and enlarged. A photo that cannot be shown, or a desktop
/// without a chooser, is told on the screen, and another photo can be chosen.
class ImagePickerController final : public Screen {
public:
    using Screen::Screen;

    std::weak_ptr<ImagePickerControllerDelegate> delegate;

    /// The frame: what is in view is what is taken.
    ui::ScrollView cropView{controls, "cropView"};
    ui::ImageView imageView{controls, "imageView"};
    ui::Label titleLabel{controls, "titleLabel"};
    ui::Label messageLabel{controls, "messageLabel"};
    ui::Button cancelButton{controls, "cancelButton"};
    ui::Button chooseButton{controls, "chooseButton"};
    /// Opens the chooser again.
    ui::Button libraryButton{controls, "libraryButton"};

    [[nodiscard]] std::string screenName() const override { return "ImagePickerController"; }

    void cancelButtonTapped();
    void chooseButtonTapped();
    void libraryButtonTapped();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void screenSizeDidChange() override;

private:
    void openLibrary();
    void load(const std::string& url);
    void showPhoto(ui::Image photo, const std::string& url);
    void tell(std::string message);
    [[nodiscard]] std::optional<ui::Image> framedPart() const;

    std::optional<std::string> imageURL_;
    bool opened_ = false;
    int choices_ = 0; ///< a photo that comes after a later choice is dropped
};

} // namespace tessivo
