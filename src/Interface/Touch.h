#pragma once

#include "Interface/Geometry.h"
#include "Interface/VelocityTracker.h"
#include "Ports/Subscription.h"

#include <functional>
#include <memory>
#include <vector>

namespace tessivo::ui {

class Button;
class CellList;
class CollectionViewCell;
class GestureRecognizer;
class PanGestureRecognizer;
class View;

/// A pointer to a view that may be destroyed in the meantime.
template <class Viewed>
class ViewRef {
public:
    ViewRef() = default;
    explicit ViewRef(Viewed* view) : view_(view), life_(view ? view->lifetime() : decltype(life_)()) {}

    [[nodiscard]] Viewed* get() const { return life_.expired() ? nullptr : view_; }

private:
    Viewed* view_ = nullptr;
    std::weak_ptr<const void> life_;
};

// One finger on a view, from coming down to going up: the one road from a window to a recognizer, a button
// and a tap.
//
//   down --a rest--> the card looks pressed --a long rest--> held: a menu, or nothing
//     |--more than the slop of a tap--> a drag: a pan recognizer's, or nobody's: then the window scrolls
//     |--up--> a tap: the button's, a tap recognizer's, or the cell's
//
// What the finger is on is found by the view's own hit test, the innermost first. A cell that is moving stops
// under the finger, and goes on when the finger has done nothing else with it.

class Touch final : public std::enable_shared_from_this<Touch> {
public:
    enum class Kind {
        Finger, ///< or a mouse button: presses, taps, holds, drags
        Scroll  ///< two fingers on a touchpad: drags only
    };

    /// Comes down at `point` of `root`, which outlives the touch. All points are in the space of `root`;
    /// times are steady seconds and never fall.
    [[nodiscard]] static std::shared_ptr<Touch> begin(View& root, Point point, Seconds time,
                                                      Kind kind = Kind::Finger);
    /// A finger that is lost is a cancelled one.
    ~Touch();
    Touch(const Touch&) = delete;
    Touch& operator=(const Touch&) = delete;

    /// Returns whether a recognizer has the finger now, so that the window must not scroll.
    bool moveTo(Point point, Seconds time);
    /// Counts as a long rest at once, as a press of the second mouse button does.
    void hold();
    void release(Seconds time);
    void cancel();

private:
    explicit Touch(View& root) : root_(root) {}

    void land(Kind kind);
    [[nodiscard]] View* find();
    void press();
    void look(bool pressed);
    void letGo(bool inside);
    void leaveList(const std::function<void()>& act);
    void drag(Point way);
    void act();
    template <class Recognizer, class Recognize>
    [[nodiscard]] std::shared_ptr<Recognizer> firstThatTakes(Recognize recognize) const;
    [[nodiscard]] Point locationIn(const GestureRecognizer& recognizer) const;

    View& root_;
    Point start_;
    Point now_;
    VelocityTracker velocity_;
    CellList* list_ = nullptr; ///< whose cell it is on, until the finger has left it
    ViewRef<View> listView_;
    ViewRef<CollectionViewCell> cell_;
    ViewRef<Button> button_;
    bool onButton_ = false;
    std::vector<std::shared_ptr<GestureRecognizer>> recognizers_; ///< under the finger, innermost first
    std::shared_ptr<PanGestureRecognizer> pan_;
    Point panStart_;
    bool spent_ = false;    ///< this finger has no further effect
    Subscription pressing_; ///< until the card looks pressed
    Subscription holding_;
    Subscription glow_; ///< a quick tap stays visible for a moment
};

} // namespace tessivo::ui
