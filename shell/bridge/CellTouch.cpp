#include "bridge/CellTouch.h"

#include "Interface/Button.h"

#include <algorithm>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr double slack = 10; ///< what a finger may tremble in a tap
constexpr Seconds velocityWindow{0.08};

bool holds(const ui::View& view, const ui::View* wanted) {
    return &view == wanted || std::ranges::any_of(view.subviews(), [&](const ui::View* subview) {
        return holds(*subview, wanted);
    });
}

} // namespace

CellTouch::CellTouch(ui::CollectionView& collection, ui::Point point, Seconds time)
    : collection_(collection), start_(point) {
    note(point, time);
    ui::View* const hit = collection.hitTest(point);
    for (ui::View* view = hit; view && view != &collection; view = view->superview()) {
        const auto& held = view->gestureRecognizers();
        recognizers_.insert(recognizers_.end(), held.begin(), held.end());
        if (const auto* cell = dynamic_cast<const ui::CollectionViewCell*>(view)) {
            if (const auto item = collection.itemFor(*cell))
                cell_ = collection.cellForItem(*item);
        }
    }
    if (!cell_)
        return;
    button_ = dynamic_cast<ui::Button*>(hit);
    if (button_)
        button_->press(ui::PressEvent::Down);
    else
        cell_->setHighlighted(true);
}

bool CellTouch::moveTo(ui::Point point, Seconds time) {
    note(point, time);
    if (pan_) {
        pan_->change(locationIn(*pan_), {point.x - panStart_.x, point.y - panStart_.y}, velocity());
        return true;
    }
    if (spent_ || !hasLeftStart())
        return false;
    spent_ = true;
    letGo(false);
    const ui::Point way{point.x - start_.x, point.y - start_.y};
    if (std::abs(way.x) < std::abs(way.y))
        return false;
    pan_ = firstThatTakes<ui::PanGestureRecognizer>(
        [&](ui::PanGestureRecognizer& pan) { return pan.begin(locationIn(pan), way, velocity()); });
    // The way that told the drag from a tap moves nothing, or the content would jump by it.
    panStart_ = point;
    return pan_ != nullptr;
}

std::optional<int> CellTouch::hold() {
    if (spent_ || button_ || !cell_)
        return std::nullopt;
    if (firstThatTakes<ui::LongPressGestureRecognizer>(
            [&](ui::LongPressGestureRecognizer& press) { return press.recognize(locationIn(press)); })) {
        spent_ = true;
        letGo(false);
        return std::nullopt;
    }
    return collection_.itemFor(*cell_);
}

void CellTouch::release(Seconds time) {
    if (pan_) {
        note(samples_.back().point, time);
        std::exchange(pan_, nullptr)->end(velocity());
        return;
    }
    if (std::exchange(spent_, true) || !cell_)
        return;
    const bool onButton = button_ != nullptr;
    letGo(true);
    if (onButton || firstThatTakes<ui::TapGestureRecognizer>(
                        [&](ui::TapGestureRecognizer& tap) { return tap.recognize(locationIn(tap)); }))
        return;
    if (const auto item = collection_.itemFor(*cell_))
        collection_.tapItem(*item);
}

void CellTouch::cancel() {
    if (pan_)
        std::exchange(pan_, nullptr)->cancel();
    spent_ = true;
    letGo(false);
}

template <class Recognizer, class Recognize>
std::shared_ptr<Recognizer> CellTouch::firstThatTakes(Recognize recognize) const {
    for (const auto& recognizer : recognizers_) {
        auto wanted = std::dynamic_pointer_cast<Recognizer>(recognizer);
        if (wanted && wanted->view() && recognize(*wanted))
            return wanted;
    }
    return nullptr;
}

void CellTouch::note(ui::Point point, Seconds time) {
    std::erase_if(samples_, [&](const Sample& sample) { return time - sample.time > velocityWindow; });
    samples_.push_back({point, time});
}

ui::Point CellTouch::velocity() const {
    const Sample& first = samples_.front();
    const Sample& last = samples_.back();
    const double span = (last.time - first.time).count();
    if (span <= 0)
        return {};
    return {(last.point.x - first.point.x) / span, (last.point.y - first.point.y) / span};
}

bool CellTouch::hasLeftStart() const {
    const ui::Point now = samples_.back().point;
    return std::max(std::abs(now.x - start_.x), std::abs(now.y - start_.y)) > slack;
}

ui::Point CellTouch::locationIn(const ui::GestureRecognizer& recognizer) const {
    return collection_.convertTo(*recognizer.view(), samples_.back().point);
}

void CellTouch::letGo(bool inside) {
    if (button_ && holds(*cell_, button_))
        button_->press(inside ? ui::PressEvent::UpInside : ui::PressEvent::UpOutside);
    else if (cell_ && cell_->isHighlighted())
        cell_->setHighlighted(false);
    button_ = nullptr;
}

} // namespace tessivo::shell
