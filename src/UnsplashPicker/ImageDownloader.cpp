#include "UnsplashPicker/ImageDownloader.h"

#include "Ports/HttpClient.h"
#include "Ports/MainQueue.h"
#include "Ports/ResponseCache.h"
#include "Ports/WorkQueue.h"
#include "UnsplashPicker/PickerServices.h"

#include <utility>

namespace tessivo::unsplash {
namespace {

constexpr Seconds timeout{60};

} // namespace

/// One download. It stays as it was made, so that all threads may read it.
struct ImageDownloader::Job {
    std::weak_ptr<ImageDownloader> owner;
    PickerPlatform platform;
    std::shared_ptr<ResponseCache> cache;
    std::string url;
    PixelSize size;
    Completion completion;

    /// Null where `body` makes no picture.
    [[nodiscard]] ui::Image decode(const std::string& body) const {
        return {{}, platform.images.decode(body, size)};
    }

    /// Hands a step back to the downloader, on its thread.
    void onMain(std::function<void(ImageDownloader&)> step) const {
        platform.mainQueue.post([weak = owner, step = std::move(step)] {
            if (const auto downloader = weak.lock())
                step(*downloader);
        });
    }
};

void ImageDownloader::download(const Url& url, PixelSize size, Completion completion) {
    cancel();
    job_ = std::make_shared<Job>(Job{weak_from_this(), services_.platform(), services_.imageCache(),
                                     url.absoluteString(), size, std::move(completion)});
    services_.platform().background.post([job = job_] {
        if (const auto body = job->cache->find(job->url)) {
            if (const ui::Image image = job->decode(*body); image.isSet())
                return job->onMain([job, image](auto& self) { self.deliver(*job, image, true); });
        }
        job->onMain([job](auto& self) { self.fetch(job); });
    });
}

void ImageDownloader::cancel() {
    job_.reset();
    if (const auto task = std::exchange(imageDataTask, nullptr))
        task->cancel();
}

void ImageDownloader::fetch(const std::shared_ptr<Job>& job) {
    if (job != job_)
        return;
    const auto received = [job](const Result<HttpResponse>& answer) {
        if (!answer || job->owner.expired())
            return;
        const ui::Image image = job->decode(answer.value().body);
        if (!image.isSet())
            return;
        job->cache->store(job->url, answer.value().body);
        job->onMain([job, image](auto& self) { self.deliver(*job, image, false); });
    };
    imageDataTask = services_.platform().http.start({.url = job->url, .timeout = timeout}, received);
}

void ImageDownloader::deliver(const Job& job, const ui::Image& image, bool fromCache) {
    if (&job != job_.get())
        return;
    const auto completion = job.completion;
    job_.reset();
    imageDataTask.reset();
    completion(image, fromCache);
}

} // namespace tessivo::unsplash
