#include "UnsplashPicker/ImageCache.h"

#include "Ports/ResponseCache.h"
#include "UnsplashPicker/UnsplashPickerConfiguration.h"

namespace tessivo::unsplash {

ImageCache::ImageCache(ResponseCaches& caches) : caches_(caches) {}

ImageCache::~ImageCache() = default;

std::shared_ptr<ResponseCache> ImageCache::shared(const UnsplashPickerConfiguration& configuration) {
    if (!cache_)
        cache_ = caches_.open("unsplash", configuration.memoryCapacity, configuration.diskCapacity);
    return cache_;
}

} // namespace tessivo::unsplash
