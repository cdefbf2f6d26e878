#include "Interface/VelocityTracker.h"

#include <algorithm>
#include <cmath>

namespace tessivo::ui {
namespace {

constexpr Seconds window{0.1};
constexpr Seconds weightDecay{0.015}; ///< a sample that much older weighs 1/e
constexpr Seconds shortestMove{0.008};

} // namespace

void VelocityTracker::add(Point point, Seconds time) {
    // One sample from before the window stays: after a rest, it is what the first move starts from.
    const auto recent =
        std::ranges::find_if(samples_, [&](const Sample& sample) { return time - sample.time <= window; });
    if (recent - samples_.begin() > 1)
        samples_.erase(samples_.begin(), recent - 1);
    samples_.push_back({point, time});
}

/// The slope of the straight line that fits the samples best, each by its weight. All is counted from the
/// last sample, so that a finger at rest has no speed at all, whatever is lost in rounding.
Point VelocityTracker::velocity() const {
    if (samples_.size() < 2)
        return {};
    const Sample& last = samples_.back();
    double weights = 0;
    Seconds meanTime{0};
    Point mean;
    std::vector<double> weightOf;
    for (const auto& [point, time] : samples_) {
        const double weight = std::exp((time - last.time) / weightDecay);
        weightOf.push_back(weight);
        weights += weight;
        meanTime += weight * (time - last.time);
        mean.x += weight * (point.x - last.point.x);
        mean.y += weight * (point.y - last.point.y);
    }
    meanTime /= weights;
    mean = {mean.x / weights, mean.y / weights};
    double spread = 0;
    Point along;
    for (std::size_t index = 0; index < samples_.size(); ++index) {
        const double offset = (samples_[index].time - last.time - meanTime).count() * weightOf[index];
        spread += offset * (samples_[index].time - last.time - meanTime).count();
        along.x += offset * (samples_[index].point.x - last.point.x - mean.x);
        along.y += offset * (samples_[index].point.y - last.point.y - mean.y);
    }
    if (spread > 0)
        return {along.x / spread, along.y / spread};
    // All samples have one time: at least the direction is known.
    const Point& first = samples_.front().point;
    return {(last.point.x - first.x) / shortestMove.count(), (last.point.y - first.y) / shortestMove.count()};
}

} // namespace tessivo::ui
