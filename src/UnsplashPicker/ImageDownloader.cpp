#include "UnsplashPicker/ImageDownloader.h"

#include "UnsplashPicker/PickerServices.h"

#include <utility>

namespace tessivo::unsplash {
namespace {

constexpr Seconds timeout{60};
constexpr std::size_t maximumBody = 16u << 20u; // bytes

} // namespace

void ImageDownloader::download(const Url& url, PixelSize size, Completion completion) {
    cancel();
    imageDataTask = services_.pictures().load(
        {.http = {.url = url.absoluteString(), .timeout = timeout, .maximumBody = maximumBody},
         .covering = size,
         .cache = services_.imageCache(),
         .failureLine = {}},
        [this, completion = std::move(completion)](const std::shared_ptr<const Bitmap>& picture,
                                                   bool cached) {
            imageDataTask.reset();
            if (picture)
                completion({{}, picture}, cached);
        });
}

void ImageDownloader::cancel() {
    if (const auto task = std::exchange(imageDataTask, nullptr))
        task->cancel();
}

} // namespace tessivo::unsplash
