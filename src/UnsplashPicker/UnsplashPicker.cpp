#include "UnsplashPicker/UnsplashPicker.h"

#include "UnsplashPicker/PickerServices.h"

namespace tessivo::unsplash {

UnsplashPicker::UnsplashPicker(ui::WindowContext& window,
                               std::shared_ptr<UnsplashPickerViewController> content)
    : NavigationController(window, content), content_(*content) {}

std::shared_ptr<UnsplashPicker> UnsplashPicker::make(PickerServices& services, ui::WindowContext& window,
                                                     UnsplashPickerConfiguration configuration) {
    services.setConfiguration(std::move(configuration));
    const std::shared_ptr<UnsplashPicker> picker(
        new UnsplashPicker(window, std::make_shared<UnsplashPickerViewController>(services, window)));
    picker->content_.delegate = picker;
    return picker;
}

void UnsplashPicker::photoPickerDidFinish(UnsplashPickerViewController&, const Photos& photos) {
    if (const auto listener = photoPickerDelegate.lock())
        listener->photoPickerDidSelect(*this, photos);
    dismiss();
}

void UnsplashPicker::photoPickerDidCancel(UnsplashPickerViewController&) {
    if (const auto listener = photoPickerDelegate.lock())
        listener->photoPickerDidCancel(*this);
    dismiss();
}

} // namespace tessivo::unsplash
