#pragma once

#include "Interface/ViewController.h"

#include <vector>

namespace tessivo::ui {

class AnimatedTransitioning;

/// The screens of one window, one over the other: the root, and above it each screen that the one below
/// presents. Owns them. It may grow without bound; a window need keep drawings only for the top full screen,
/// what stands on it, and the full screen that a transition uncovers. Main thread.
class PresentationStack {
public:
    explicit PresentationStack(WindowContext& window) : window_(window) {}
    ~PresentationStack();
    PresentationStack(const PresentationStack&) = delete;
    PresentationStack& operator=(const PresentationStack&) = delete;

    /// Makes `root` the one screen. What stood before goes.
    void setRoot(const std::shared_ptr<ViewController>& root);

    /// From the root to the top.
    [[nodiscard]] const std::vector<std::shared_ptr<ViewController>>& screens() const { return screens_; }
    [[nodiscard]] ViewController* top() const { return screens_.empty() ? nullptr : screens_.back().get(); }
    /// While a transition runs, touches are not for the screens.
    [[nodiscard]] bool isInTransition() const { return transition_ != nullptr; }
    [[nodiscard]] WindowContext& window() const { return window_; }

    /// `changed` is called when a screen has come or gone, and when a transition has ended.
    [[nodiscard]] Subscription onChange(std::function<void()> changed) {
        return changes_.subscribe(std::move(changed));
    }

    // For view controllers.
    void present(ViewController& presenter, const std::shared_ptr<ViewController>& screen, bool animated,
                 std::function<void()> completion);
    void dismissAbove(const ViewController& base, bool animated, std::function<void()> completion);
    [[nodiscard]] ViewController* above(const ViewController& screen) const;
    [[nodiscard]] ViewController* below(const ViewController& screen) const;

private:
    [[nodiscard]] ViewController& covered(std::size_t index) const;
    void run(const std::shared_ptr<AnimatedTransitioning>& transition, View& from, View& to,
             std::function<void()> ended);

    WindowContext& window_;
    std::vector<std::shared_ptr<ViewController>> screens_;
    std::shared_ptr<AnimatedTransitioning> transition_;
    Signal<> changes_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< a transition may end after the window
};

} // namespace tessivo::ui
