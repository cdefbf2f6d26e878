#pragma once

#include "Interface/ImageView.h"
#include "Interface/PictureLoader.h"
#include "Ports/Url.h"

namespace tessivo::unsplash {

class PickerServices;

/// Fetches one thumbnail at a time, from the cache or else from the network. Main thread.
class ImageDownloader final {
public:
    explicit ImageDownloader(PickerServices& services) : services_(services) {}
    ~ImageDownloader() { cancel(); }
    ImageDownloader(const ImageDownloader&) = delete;
    ImageDownloader& operator=(const ImageDownloader&) = delete;

    using Completion = std::function<void(const ui::Image& image, bool fromCache)>;

    /// Fetches the picture at `url`, reduced to what covers `size`, in place of the one under way.
    /// `completion` is called once the picture is there; not if the download fails or is cancelled.
    void download(const Url& url, PixelSize size, Completion completion);
    void cancel();
    /// Cancels what is not on its way over the network yet.
    void cancelUnlessFetching();

private:
    PickerServices& services_;
    std::shared_ptr<ui::PictureLoader::Load> imageDataTask;
};

} // namespace tessivo::unsplash
