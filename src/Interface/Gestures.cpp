#include "Interface/Gestures.h"

#include "Interface/View.h"

namespace tessivo::ui {

void GestureRecognizer::addTarget(const void* owner, Target target) {
    targets_.emplace_back(owner, std::make_shared<Target>(std::move(target)));
}

void GestureRecognizer::removeTarget(const void* owner) {
    std::erase_if(targets_, [&](const auto& target) { return target.first == owner; });
}

void GestureRecognizer::setEnabled(bool enabled) {
    enabled_ = enabled;
    if (!enabled && (state_ == GestureState::Began || state_ == GestureState::Changed))
        enter(GestureState::Cancelled);
}

Point GestureRecognizer::locationIn(const View& view) const {
    return view_ ? view_->convertTo(view, location_) : location_;
}

bool GestureRecognizer::mayBegin() {
    if (!enabled_ || (view_ && !view_->takesActs()))
        return false;
    const auto listener = delegate.lock();
    return !listener || listener->gestureRecognizerShouldBegin(*this);
}

void GestureRecognizer::enter(GestureState state) {
    const auto alive = weak_from_this().lock();
    state_ = state;
    // A target may remove itself or others, so each call stands on an index that is checked anew.
    for (std::size_t index = 0; index < targets_.size(); ++index) {
        const auto target = targets_[index].second;
        (*target)(*this);
    }
    if (state_ == GestureState::Ended || state_ == GestureState::Cancelled)
        state_ = GestureState::Possible;
}

bool TapGestureRecognizer::recognize(Point point) {
    setLocation(point);
    if (!mayBegin())
        return false;
    enter(GestureState::Ended);
    return true;
}

bool PanGestureRecognizer::begin(Point location, Point translation, Point velocity) {
    setLocation(location);
    raw_ = translation;
    offset_ = {};
    velocity_ = velocity;
    if (!mayBegin())
        return false;
    enter(GestureState::Began);
    return true;
}

void PanGestureRecognizer::change(Point location, Point translation, Point velocity) {
    if (!isUnderWay())
        return;
    setLocation(location);
    raw_ = translation;
    velocity_ = velocity;
    enter(GestureState::Changed);
}

void PanGestureRecognizer::end(Point velocity) {
    if (!isUnderWay())
        return;
    velocity_ = velocity;
    enter(GestureState::Ended);
}

void PanGestureRecognizer::cancel() {
    if (isUnderWay())
        enter(GestureState::Cancelled);
}

Point PanGestureRecognizer::translation() const {
    return {raw_.x + offset_.x, raw_.y + offset_.y};
}

void PanGestureRecognizer::setTranslation(Point translation) {
    offset_ = {translation.x - raw_.x, translation.y - raw_.y};
}

bool PanGestureRecognizer::isUnderWay() const {
    return state() == GestureState::Began || state() == GestureState::Changed;
}

} // namespace tessivo::ui
