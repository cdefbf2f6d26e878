#pragma once

#include "Interface/NavigationController.h"
#include "UnsplashPicker/UnsplashPickerConfiguration.h"
#include "UnsplashPicker/UnsplashPickerViewController.h"

namespace tessivo::unsplash {

class UnsplashPicker;

/// Notified of the user's choice. Held weakly.
class UnsplashPickerDelegate {
public:
    virtual ~UnsplashPickerDelegate() = default;

    virtual void photoPickerDidSelect(UnsplashPicker& picker, const Photos& photos) = 0;
    virtual void photoPickerDidCancel(UnsplashPicker& picker) = 0;
};

/// The photo browser, as the host program presents it. It closes itself after a choice or a cancel.
class UnsplashPicker final : public ui::NavigationController, public UnsplashPickerViewControllerDelegate {
public:
    /// Puts `configuration` in force for all pickers. Never null.
    [[nodiscard]] static std::shared_ptr<UnsplashPicker>
    make(PickerServices& services, ui::WindowContext& window, UnsplashPickerConfiguration configuration);

    std::weak_ptr<UnsplashPickerDelegate> photoPickerDelegate;

    [[nodiscard]] std::string screenName() const override { return "UnsplashPicker"; }
    /// The one screen inside.
    [[nodiscard]] UnsplashPickerViewController& photoPickerViewController() const { return content_; }

    void photoPickerDidFinish(UnsplashPickerViewController& screen, const Photos& photos) override;
    void photoPickerDidCancel(UnsplashPickerViewController& screen) override;

private:
    UnsplashPicker(ui::WindowContext& window, std::shared_ptr<UnsplashPickerViewController> content);

    UnsplashPickerViewController& content_;
};

} // namespace tessivo::unsplash
