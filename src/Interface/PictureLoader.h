#pragma once

#include "Interface/Geometry.h"
#include "Ports/Bitmap.h"
#include "Ports/HttpClient.h"
#include "Ports/ImageCoding.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessivo {
class Console;
class MainQueue;
class ResponseCache;
class WorkQueue;
} // namespace tessivo

namespace tessivo::ui {

/// The pixels that must be read of a picture to draw it over `drawn` points without blur.
[[nodiscard]] PixelSize pixelsCovering(Size drawn, double scale);

/// The one way from an address to a picture: fetched by the network's thread, decoded on the work queue at
/// the size that is drawn, handed over on the main thread. It bounds memory: only so many pictures are under
/// way at a time, the others wait their turn. Made by `std::make_shared`; main thread.
class PictureLoader final : public std::enable_shared_from_this<PictureLoader> {
public:
    /// What it is built on. All of it outlives the loader and its unfinished work.
    struct Machine {
        HttpClient& http;
        WorkQueue& work;
        ImageCoding& images;
        MainQueue& mainQueue;
        Console& console;
    };

    struct Request {
        HttpRequest http;
        PixelSize covering;                   ///< what is drawn of it
        std::shared_ptr<ResponseCache> cache; ///< looked in first, and given what came; null for none
        std::string failureLine; ///< console line ahead of a failure's description; empty for none
    };

    /// `picture` is null if none came of the address.
    using Loaded = std::function<void(const std::shared_ptr<const Bitmap>& picture, bool fromCache)>;

    /// A picture on its way. Dropping the handle lets it go on.
    class Load {
    public:
        virtual ~Load() = default;
        /// The picture is no longer wanted: `Loaded` is not called, and what is not decoded yet never is.
        virtual void cancel() = 0;
        /// The picture has left the screen, perhaps not for good: cancels it, unless its download has begun.
        virtual void cancelUnlessFetching() = 0;
    };

    static constexpr std::size_t maximumUnderWay = 16;

    explicit PictureLoader(const Machine& machine) : machine_(machine) {}
    ~PictureLoader();
    PictureLoader(const PictureLoader&) = delete;
    PictureLoader& operator=(const PictureLoader&) = delete;

    /// Never null. `loaded` is called once, in a later turn of the main queue, and is destroyed on the main
    /// thread.
    std::shared_ptr<Load> load(Request request, Loaded loaded);

private:
    struct Job;

    void startNext();
    void fetch(const std::shared_ptr<Job>& job);
    void finish(const std::shared_ptr<Job>& job, const std::shared_ptr<const Bitmap>& picture,
                bool fromCache);

    const Machine machine_;
    std::deque<std::shared_ptr<Job>> waiting_;
    std::vector<std::shared_ptr<Job>> underWay_;
};

} // namespace tessivo::ui
