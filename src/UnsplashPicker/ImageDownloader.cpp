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
    ui::PictureLoader::Request request;
    request.http = {.url = url.absoluteString(), .timeout = timeout, .maximumBody = maximumBody};
    request.covering = size;
    request.cache = services_.imageCache();
    imageDataTask = services_.pictures().load(
        std::move(request), [this, completion = std::move(completion)](const auto& picture, bool cached) {
            imageDataTask.reset();
            if (picture)
                completion({{}, picture}, cached);
        });
}

void ImageDownloader::cancel() {
    if (const auto task = std::exchange(imageDataTask, nullptr))
        task->cancel();
}

void ImageDownloader::cancelUnlessFetching() {
    if (imageDataTask)
        imageDataTask->cancelUnlessFetching();
}

} // namespace tessivo::unsplash
