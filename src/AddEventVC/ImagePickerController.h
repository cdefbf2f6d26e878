#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/ScrollView.h"
#include "Ports/PhotoLibrary.h"
#include "Support/Screen.h"

#include <optional>
#include <string>

namespace tessivo {

class ImagePickerController;

/// What the user has taken from the photo library. A source may leave out any of it.
struct PickedMedia {
    std::optional<ui::Image> originalImage;
    std::optional<ui::Image> editedImage; ///< the part that was in the frame
    std::optional<std::string> imageURL;  ///< of a file of that part
};

/// Hears how the photo library was left, and takes its screen away. Held weakly.
class ImagePickerControllerDelegate {
public:
    virtual ~ImagePickerControllerDelegate() = default;
    virtual void imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                            const PickedMedia& info) = 0;
    virtual void imagePickerControllerDidCancel(ImagePickerController& picker) = 0;
};

/// The user's photo library. The desktop's chooser comes first; the chosen photo then lies under a frame of a
/// card's shape, to be moved and enlarged. What was in the frame becomes a file of the library's own, so that
/// the card shows what was framed, also when the photo has gone. A photo that cannot be shown or kept, or a
/// desktop without a chooser, is reported on the screen, and another photo can be chosen.
class ImagePickerController final : public Screen {
public:
    using Screen::Screen;

    std::weak_ptr<ImagePickerControllerDelegate> delegate;

    /// Opens the desktop's chooser over `presenter`, which stays on the screen until a photo is chosen; the
    /// picker is then presented on it, unless it has been left or covered meanwhile. A user who chooses
    /// nothing sees nothing of the picker.
    static void open(SharedServices& services, ui::ViewController& presenter,
                     std::weak_ptr<ImagePickerControllerDelegate> delegate);

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
    void screenSizeDidChange() override;

private:
    void take(const PhotoLibrary::Choice& choice);
    void load(const Url& url);
    void showPhoto(ui::Image photo);
    void tell(std::string_view message);
    [[nodiscard]] std::optional<ui::Image> framedPart() const;

    int choices_ = 0; ///< a photo that comes after a later choice is dropped
};

} // namespace tessivo
