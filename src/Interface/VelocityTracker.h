#pragma once

#include "Interface/Geometry.h"
#include "Ports/Time.h"

#include <vector>

namespace tessivo::ui {

/// How fast a finger moves, judged by the last tenth of a second of its way. The latest moments count most,
/// so that a short flick back after a long drag counts as one.
class VelocityTracker {
public:
    /// The finger is at `point` at `time`. Times never fall.
    void add(Point point, Seconds time);
    /// In points per second; none before the finger has moved.
    [[nodiscard]] Point velocity() const;

private:
    struct Sample {
        Point point;
        Seconds time;
    };

    std::vector<Sample> samples_;
};

} // namespace tessivo::ui
