#pragma once

#include "Interface/ImageView.h"
#include "Ports/ImageCoding.h"
#include "Ports/Url.h"

#include <functional>
#include <memory>

namespace tessivo {
class HttpTask;
}

namespace tessivo::unsplash {

class PickerServices;

/// Fetches one picture at a time, from the cache or else from the network. Reading, decoding and keeping are
/// done off the main thread; its operations and completions stand on it. Made by `std::make_shared`.
class ImageDownloader final : public std::enable_shared_from_this<ImageDownloader> {
public:
    explicit ImageDownloader(PickerServices& services) : services_(services) {}

    using Completion = std::function<void(const ui::Image& image, bool fromCache)>;

    /// Fetches the picture at `url`, reduced to what covers `size`. `completion` is called where one comes of
    /// it, and not where the download fails, is cancelled or gives way to the next.
    void download(const Url& url, PixelSize size, Completion completion);
    void cancel();

private:
    struct Job;

    void fetch(const std::shared_ptr<Job>& job);
    void deliver(const Job& job, const ui::Image& image, bool fromCache);

    PickerServices& services_;
    std::shared_ptr<HttpTask> imageDataTask;
    std::shared_ptr<Job> job_; ///< the one whose picture is wanted
};

} // namespace tessivo::unsplash
