#pragma once

#include <memory>

namespace tessivo {
class ResponseCache;
class ResponseCaches;
} // namespace tessivo

namespace tessivo::unsplash {

class UnsplashPickerConfiguration;

/// The one cache of downloaded pictures, in a folder of the user's caches. Main thread.
class ImageCache {
public:
    explicit ImageCache(ResponseCaches& caches);
    ~ImageCache();

    /// Made on first use; a configuration given later does not resize it.
    [[nodiscard]] std::shared_ptr<ResponseCache> shared(const UnsplashPickerConfiguration& configuration);

private:
    ResponseCaches& caches_;
    std::shared_ptr<ResponseCache> cache_;
};

} // namespace tessivo::unsplash
