#include "Interface/Touch.h"

#include "Interface/Animation.h"
#include "Interface/Button.h"
#include "Interface/CellList.h"
#include "Interface/CollectionViewCell.h"
#include "Interface/Gestures.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessivo::ui {
namespace {

constexpr double slack = 10;        ///< how far a finger may move in a tap
constexpr Seconds pressDelay{0.12}; ///< in which a scroll shows
constexpr Seconds holdDelay{0.5};
constexpr Seconds tapGlow{0.1};

Timers* timersOf(const View& root) {
    auto* const animations = root.animations();
    return animations ? &animations->timers() : nullptr;
}

} // namespace

std::shared_ptr<Touch> Touch::begin(View& root, Point point, Seconds time, Kind kind) {
    std::shared_ptr<Touch> touch(new Touch(root));
    touch->start_ = touch->now_ = point;
    touch->velocity_.add(point, time);
    touch->land(kind);
    return touch;
}

Touch::~Touch() {
    cancel();
}

View* Touch::find() {
    View* const hit = root_.hitTest(now_);
    // The first cell asked beside an open one closes that and is not touched: ask once more for what is
    // there.
    return hit && hit != &root_ ? hit : root_.hitTest(now_);
}

void Touch::land(Kind kind) {
    View* hit = find();
    CollectionViewCell* cell = nullptr;
    for (View* view = hit; view && !list_; view = view->superview()) {
        if (!cell)
            cell = dynamic_cast<CollectionViewCell*>(view);
        list_ = cell ? dynamic_cast<CellList*>(view) : nullptr;
        listView_ = ViewRef(list_ ? view : nullptr);
        if (view == &root_)
            break;
    }
    if (list_) {
        list_->fingerCame();
        cell_ = ViewRef(cell);
        if (cell->holdStill())
            hit = cell->hitTest(root_.convertTo(*cell, now_)); // other parts of it are under the finger now
    }
    for (View* view = hit; view && view != &root_; view = view->superview()) {
        const auto& held = view->gestureRecognizers();
        recognizers_.insert(recognizers_.end(), held.begin(), held.end());
    }
    if (kind == Kind::Scroll)
        return;
    button_ = ViewRef(dynamic_cast<Button*>(hit));
    onButton_ = button_.get() != nullptr;
    if (onButton_) {
        button_.get()->press(PressEvent::Down);
        return;
    }
    auto* const timers = timersOf(root_);
    if (!cell_.get())
        return;
    if (!timers)
        return look(true);
    pressing_ = timers->once(pressDelay, [this] {
        pressing_.end();
        look(true);
    });
    holding_ = timers->once(holdDelay, [this] { hold(); });
}

void Touch::look(bool pressed) {
    if (auto* const cell = cell_.get(); cell && cell->isHighlighted() != pressed)
        cell->setHighlighted(pressed);
}

bool Touch::moveTo(Point point, Seconds time) {
    const auto alive = shared_from_this();
    now_ = point;
    velocity_.add(point, time);
    if (pan_) {
        pan_->change(locationIn(*pan_), {point.x - panStart_.x, point.y - panStart_.y}, velocity_.velocity());
        return pan_ != nullptr;
    }
    const Point way{point.x - start_.x, point.y - start_.y};
    if (!spent_ && std::max(std::abs(way.x), std::abs(way.y)) > slack)
        drag(way);
    return pan_ != nullptr;
}

void Touch::drag(Point way) {
    spent_ = true;
    letGo(false);
    if (std::abs(way.x) >= std::abs(way.y)) {
        pan_ = firstThatTakes<PanGestureRecognizer>(
            [&](PanGestureRecognizer& pan) { return pan.begin(locationIn(pan), way, velocity_.velocity()); });
    }
    // The slop before the drag is recognized moves nothing, or the content would jump by it.
    panStart_ = now_;
    if (!pan_)
        leaveList([] {});
}

void Touch::hold() {
    const auto alive = weak_from_this().lock();
    holding_.end();
    auto* const cell = cell_.get();
    if (spent_ || onButton_ || !cell || !list_ || !listView_.get())
        return;
    if (!list_->holdCell(*cell, root_.convertTo(*listView_.get(), now_)))
        return;
    spent_ = true;
    letGo(false);
    leaveList([] {});
}

void Touch::release(Seconds time) {
    const auto alive = shared_from_this();
    if (const auto pan = std::exchange(pan_, nullptr)) {
        velocity_.add(now_, time);
        leaveList([&] { pan->end(velocity_.velocity()); });
        return;
    }
    if (!std::exchange(spent_, true))
        leaveList([this] { act(); });
}

void Touch::act() {
    const bool quick = pressing_.isActive();
    letGo(true);
    if (onButton_)
        return;
    if (quick) {
        look(true);
        glow_ = timersOf(root_)->once(tapGlow, [this] { look(false); });
    }
    if (firstThatTakes<TapGestureRecognizer>(
            [&](TapGestureRecognizer& tap) { return tap.recognize(locationIn(tap)); }))
        return;
    if (auto* const cell = cell_.get(); cell && listView_.get())
        list_->tapCell(*cell);
}

void Touch::cancel() {
    if (const auto pan = std::exchange(pan_, nullptr))
        pan->cancel();
    spent_ = true;
    letGo(false);
    leaveList([] {});
}

void Touch::letGo(bool inside) {
    pressing_.end();
    holding_.end();
    glow_.end();
    if (onButton_) {
        // A button that was removed under the finger gets no further events.
        auto* const button = std::exchange(button_, {}).get();
        if (button && button->isDescendantOf(root_))
            button->press(inside ? PressEvent::UpInside : PressEvent::UpOutside);
    } else {
        look(false);
    }
}

/// Once: what comes later finds no list.
void Touch::leaveList(const std::function<void()>& act) {
    auto* const list = listView_.get() ? std::exchange(list_, nullptr) : nullptr;
    list_ = nullptr;
    if (!list)
        return act();
    list->fingerGoes([&] {
        list_ = list;
        act();
        list_ = nullptr;
        if (auto* const cell = cell_.get())
            cell->moveOn();
    });
}

template <class Recognizer, class Recognize>
std::shared_ptr<Recognizer> Touch::firstThatTakes(Recognize recognize) const {
    for (const auto& recognizer : recognizers_) {
        auto wanted = std::dynamic_pointer_cast<Recognizer>(recognizer);
        if (wanted && wanted->view() && recognize(*wanted))
            return wanted;
    }
    return nullptr;
}

Point Touch::locationIn(const GestureRecognizer& recognizer) const {
    return recognizer.view() ? root_.convertTo(*recognizer.view(), now_) : now_;
}

} // namespace tessivo::ui
