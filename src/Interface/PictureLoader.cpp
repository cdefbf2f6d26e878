#include "Interface/PictureLoader.h"

#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Ports/ResponseCache.h"
#include "Ports/WorkQueue.h"

#include <atomic>
#include <cmath>
#include <utility>

namespace tessivo::ui {
namespace {

constexpr double maximumSide = 16384;

int wholePixels(double points, double scale) {
    return static_cast<int>(std::fmin(std::fmax(std::ceil(points * scale), 1), maximumSide));
}

} // namespace

PixelSize pixelsCovering(Size drawn, double scale) {
    return {wholePixels(drawn.width, scale), wholePixels(drawn.height, scale)};
}

/// All threads may read what is const; the rest belongs to the main thread.
struct PictureLoader::Job final : Load, std::enable_shared_from_this<Job> {
    Job(PictureLoader& loader, Request wanted, Loaded receiver)
        : owner(loader.weak_from_this()),
          machine(loader.machine_),
          request(std::move(wanted)),
          loaded(std::move(receiver)) {}

    void cancel() override {
        isCancelled = true;
        loaded = nullptr;
        if (task)
            task->cancel();
        if (const auto loader = owner.lock())
            loader->finish(shared_from_this(), nullptr, false);
    }

    void cancelUnlessFetching() override {
        if (!task)
            cancel();
    }

    [[nodiscard]] std::shared_ptr<const Bitmap> decode(const std::string& body) const {
        return isCancelled ? nullptr : machine.images.decode(body, request.covering);
    }

    /// Goes on with the loader, on its thread.
    void onMain(std::function<void(PictureLoader&)> step) const {
        machine.mainQueue.post([weak = owner, step = std::move(step)] {
            if (const auto loader = weak.lock())
                step(*loader);
        });
    }

    void end(std::shared_ptr<const Bitmap> picture, bool fromCache) {
        onMain([self = shared_from_this(), picture = std::move(picture), fromCache](PictureLoader& loader) {
            loader.finish(self, picture, fromCache);
        });
    }

    const std::weak_ptr<PictureLoader> owner;
    const Machine machine;
    const Request request;
    std::atomic<bool> isCancelled = false;
    Loaded loaded;
    std::shared_ptr<HttpTask> task;
};

PictureLoader::~PictureLoader() {
    for (const auto& job : underWay_)
        job->loaded = nullptr; // the network's thread may hold the job for longer
}

std::shared_ptr<PictureLoader::Load> PictureLoader::load(Request request, Loaded loaded) {
    auto job = std::make_shared<Job>(*this, std::move(request), std::move(loaded));
    waiting_.push_back(job);
    startNext();
    return job;
}

void PictureLoader::startNext() {
    while (underWay_.size() < maximumUnderWay && !waiting_.empty()) {
        const auto job = std::move(waiting_.front());
        waiting_.pop_front();
        underWay_.push_back(job);
        if (!job->request.cache) {
            fetch(job);
            continue;
        }
        machine_.work.post([job] {
            const auto body =
                job->isCancelled ? std::nullopt : job->request.cache->find(job->request.http.url);
            if (auto picture = body ? job->decode(*body) : nullptr)
                return job->end(std::move(picture), true);
            job->onMain([job](PictureLoader& loader) { loader.fetch(job); });
        });
    }
}

void PictureLoader::fetch(const std::shared_ptr<Job>& job) {
    if (job->isCancelled)
        return;
    const auto received = [job](Result<HttpResponse> answer) {
        if (!answer) {
            if (!job->request.failureLine.empty() && !job->isCancelled)
                job->machine.console.print(job->request.failureLine + answer.error().description);
            return job->end(nullptr, false);
        }
        job->machine.work.post([job, body = std::move(answer.value().body)] {
            auto picture = job->decode(body);
            if (picture && job->request.cache)
                job->request.cache->store(job->request.http.url, body);
            job->end(std::move(picture), false);
        });
    };
    job->task = machine_.http.start(job->request.http, received);
}

void PictureLoader::finish(const std::shared_ptr<Job>& job, const std::shared_ptr<const Bitmap>& picture,
                           bool fromCache) {
    if (std::erase(underWay_, job) + std::erase(waiting_, job) == 0)
        return; // it has been cancelled
    job->task.reset();
    if (const auto loaded = std::exchange(job->loaded, nullptr))
        loaded(picture, fromCache);
    startNext();
}

} // namespace tessivo::ui
