#pragma once

#include "Interface/Geometry.h"
#include "Ports/Time.h"

#include <vector>

namespace tessivo::ui {

/// The velocity of a finger over the last tenth of a second. The latest samples weigh most,
/// so that a short flick back after a long drag counts as one.
class VelocityTracker {
public:
    /// The finger is at `point` at `time`. Times never fall.
    void add(Point point, Seconds time);
    /// In points per second; zero before the finger has moved.
    [[nodiscard]] Point velocity() const;

private:
    struct Sample {
        Point point;
        Seconds time;
    };

    std::vector<Sample> samples_;
};

} // namespace tessivo::ui
