#pragma once

#include "Interface/ViewSnapshots.h"
#include "Ports/MainQueue.h"

#include <utility>
#include <vector>

namespace tessivo::fakes {

/// Without a window: gives every view the same picture, and records the requests.
class CannedSnapshots final : public ui::ViewSnapshots {
public:
    explicit CannedSnapshots(MainQueue& queue) : queue_(queue) {}

    void snapshot(const ui::View& view, Taken taken) override {
        asked.push_back(&view);
        queue_.post([picture = picture, taken = std::move(taken)] { taken(picture); });
    }

    std::shared_ptr<const Bitmap> picture = std::make_shared<Bitmap>(Bitmap{1, 1, {9, 8, 7, 255}});
    std::vector<const ui::View*> asked;

private:
    MainQueue& queue_;
};

} // namespace tessivo::fakes
