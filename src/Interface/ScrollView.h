#pragma once

#include "Interface/Gestures.h"
#include "Interface/View.h"

namespace tessivo::ui {

/// A window onto content larger than itself. Its bounds origin is where it is scrolled to.
class ScrollView : public View {
public:
    ScrollView();
    ScrollView(ControlRegistry& registry, std::string name);

    [[nodiscard]] Size contentSize() const { return contentSize_; }
    void setContentSize(Size size);
    [[nodiscard]] Insets contentInset() const { return contentInset_; }
    void setContentInset(Insets insets);
    [[nodiscard]] Point contentOffset() const { return bounds().origin(); }
    /// The program scrolls. The window follows.
    void setContentOffset(Point offset);
    /// The window has been scrolled by the user.
    void scrolledTo(Point offset);
    /// The safe area as it falls on this view.
    [[nodiscard]] Insets safeAreaInsets() const { return safeAreaInsets_; }
    void setSafeAreaInsets(Insets insets) { safeAreaInsets_ = insets; }
    /// The pan that scrolls. The window reports its states; it moves nothing by itself.
    [[nodiscard]] const std::shared_ptr<PanGestureRecognizer>& panGestureRecognizer() const { return pan_; }

    /// Hears the program's own scrolling, so that the window can follow.
    [[nodiscard]] Subscription onScrollRequest(std::function<void(Point offset)> requested) {
        return scrollRequests_.subscribe(std::move(requested));
    }

protected:
    /// After the visible part has changed, by whomever.
    virtual void didScroll() {}

private:
    Size contentSize_;
    Insets contentInset_;
    Insets safeAreaInsets_;
    std::shared_ptr<PanGestureRecognizer> pan_ = std::make_shared<PanGestureRecognizer>();
    Signal<Point> scrollRequests_;
};

} // namespace tessivo::ui
