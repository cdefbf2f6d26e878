#pragma once

#include "Interface/Geometry.h"
#include "Ports/Time.h"

#include <functional>
#include <memory>
#include <vector>

namespace tessivo::ui {

class View;

enum class GestureState { Possible, Began, Changed, Ended, Cancelled, Failed };

class GestureRecognizer;

/// Asked before a recognizer begins. Held weakly by it.
class GestureRecognizerDelegate {
public:
    virtual ~GestureRecognizerDelegate() = default;
    [[nodiscard]] virtual bool gestureRecognizerShouldBegin(GestureRecognizer& recognizer) = 0;
};

/// Watches the touches on its view. The window feeds it; targets are called with each change of its state, in
/// the order in which they were added; one may take the view away, and the recognizer with it. A gesture that
/// is over is possible again once its targets have heard of it; one that may not begin stays possible and
/// calls no target. Main thread.
class GestureRecognizer : public std::enable_shared_from_this<GestureRecognizer> {
public:
    virtual ~GestureRecognizer() = default;
    GestureRecognizer(const GestureRecognizer&) = delete;
    GestureRecognizer& operator=(const GestureRecognizer&) = delete;

    using Target = std::function<void(GestureRecognizer&)>;

    /// `owner` names the target for `removeTarget`; not touched otherwise.
    void addTarget(const void* owner, Target target);
    void removeTarget(const void* owner);

    [[nodiscard]] GestureState state() const { return state_; }
    [[nodiscard]] View* view() const { return view_; }
    [[nodiscard]] bool isEnabled() const { return enabled_; }
    /// Turning a recognizer off in mid-gesture cancels the gesture.
    void setEnabled(bool enabled);

    /// Where the touch is now, in the space of `view`.
    [[nodiscard]] Point locationIn(const View& view) const;

    std::weak_ptr<GestureRecognizerDelegate> delegate;

protected:
    GestureRecognizer() = default;

    [[nodiscard]] bool mayBegin();
    void setLocation(Point inView) { location_ = inView; }
    /// Stores the state and calls the targets.
    void enter(GestureState state);

private:
    friend class View;

    View* view_ = nullptr;
    GestureState state_ = GestureState::Possible;
    Point location_; ///< in the space of view_
    bool enabled_ = true;
    /// Shared, so that a target which removes itself lives to the end of its call.
    std::vector<std::pair<const void*, std::shared_ptr<Target>>> targets_;
};

class TapGestureRecognizer final : public GestureRecognizer {
public:
    /// A tap at `point` of its view's space: ended, where the delegate lets it begin. Says whether it was
    /// taken.
    bool recognize(Point point);
};

/// A finger that moves. Translation counts from where it began, or from the last `setTranslation`; velocity
/// is in points per second.
class PanGestureRecognizer final : public GestureRecognizer {
public:
    /// The finger has moved far enough to be a pan; `location` in its view's space. Asks the delegate with
    /// the translation already in place. Says whether it has begun.
    bool begin(Point location, Point translation, Point velocity);
    /// Ignored unless begun. `translation` counts from the beginning of the gesture.
    void change(Point location, Point translation, Point velocity);
    void end(Point velocity);
    void cancel();

    [[nodiscard]] Point translation() const;
    /// Makes the present translation read as `translation`; later movement adds to it.
    void setTranslation(Point translation);
    [[nodiscard]] Point velocity() const { return velocity_; }

private:
    [[nodiscard]] bool isUnderWay() const;

    Point raw_;    ///< since the beginning
    Point offset_; ///< what setTranslation has added
    Point velocity_;
};

} // namespace tessivo::ui
