#pragma once

#include "Interface/PictureLoader.h"
#include "Ports/Console.h"
#include "Ports/LocalizedTexts.h"
#include "Ports/ResponseCache.h"
#include "UnsplashPicker/PickerPlatform.h"
#include "UnsplashPicker/UnsplashPhoto.h"
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

    /// The one cache of downloaded pictures. Made on first use; a configuration given later does not resize
    /// it.
    [[nodiscard]] std::shared_ptr<ResponseCache> imageCache() {
        if (!imageCache_)
            imageCache_ =
                platform_.caches.open("unsplash", configuration_.memoryCapacity, configuration_.diskCapacity);
        return imageCache_;
    }
    /// Tells the service that the photo is being used, as its terms ask. Nobody waits for the answer.
    void sendDownloadPing(const UnsplashPhoto& photo) const {
        const auto link = photo.links.find(PhotoLinkKind::downloadLocation);
        if (link == photo.links.end())
            return;
        const Url address = link->second.appendingQueryItem("client_id", configuration_.accessKey);
        platform_.http.start({.url = address.absoluteString()}, [](const Result<HttpResponse>&) {});
    }
    [[nodiscard]] ui::PictureLoader& pictures() { return *pictures_; }

private:
    const PickerPlatform platform_;
    UnsplashPickerConfiguration configuration_;
    std::shared_ptr<ResponseCache> imageCache_;
    std::shared_ptr<ui::PictureLoader> pictures_ =
        std::make_shared<ui::PictureLoader>(ui::PictureLoader::Machine{
            platform_.http, platform_.background, platform_.images, platform_.mainQueue, platform_.console});
};

} // namespace tessivo::unsplash
