#pragma once

#include "Ports/Console.h"
#include "Ports/LocalizedTexts.h"
#include "UnsplashPicker/ImageCache.h"
#include "UnsplashPicker/PickerPlatform.h"
#include "UnsplashPicker/UnsplashPickerConfiguration.h"

namespace tessivo::unsplash {

/// What all pickers of a program share: the machine, the configuration in force and the cache of pictures.
/// Outlives the pickers. Main thread.
class PickerServices {
public:
    explicit PickerServices(const PickerPlatform& platform) : platform_(platform) {}
    PickerServices(const PickerServices&) = delete;
    PickerServices& operator=(const PickerServices&) = delete;

    [[nodiscard]] const PickerPlatform& platform() const { return platform_; }

    /// The configuration of the picker that was made last.
    [[nodiscard]] const UnsplashPickerConfiguration& configuration() const { return configuration_; }
    void setConfiguration(UnsplashPickerConfiguration configuration) {
        configuration_ = std::move(configuration);
    }

    /// A text of the module's table. A program that came without the table is broken: it stops.
    [[nodiscard]] std::string text(std::string_view key) const {
        if (!platform_.texts)
            platform_.console.stopProgram("unable to find bundle named UnsplashPicker_UnsplashPicker");
        return platform_.texts->localizedString(key);
    }

    /// Opened at the first call, with the capacities then in force; later ones change nothing.
    [[nodiscard]] std::shared_ptr<ResponseCache> imageCache() { return imageCache_.shared(configuration_); }

private:
    const PickerPlatform platform_;
    UnsplashPickerConfiguration configuration_;
    ImageCache imageCache_{platform_.caches};
};

} // namespace tessivo::unsplash
