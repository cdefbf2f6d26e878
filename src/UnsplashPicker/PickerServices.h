#pragma once

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

    /// Opened at the first call, with the capacities then in force; later ones change nothing.
    [[nodiscard]] ResponseCache& imageCache() { return imageCache_.shared(configuration_); }

private:
    const PickerPlatform platform_;
    UnsplashPickerConfiguration configuration_;
    ImageCache imageCache_{platform_.caches};
};

} // namespace tessivo::unsplash
