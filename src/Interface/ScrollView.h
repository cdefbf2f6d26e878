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
    /// The program scrolls. The window follows; animated, it goes there over time and reports its way.
    /// Without a window it is done at once.
    void setContentOffset(Point offset, bool animated = false);
    /// The window has been scrolled by the user.
    void scrolledTo(Point offset);

    /// Whether scrolling comes to rest only at whole multiples of the frame. The window sees to it.
    bool isPagingEnabled = false;

    // Zooming: one view fills the content and is enlarged with it.
    /// Nothing before `setZoomedContent`. Not owned.
    void setZoomedView(View* view) { zoomedView_ = view; }
    /// The content is that large at the scale 1, which it has now, and can be enlarged up to `maximumScale`.
    void setZoomedContent(Size size, double maximumScale);
    [[nodiscard]] double zoomScale() const { return zoomScale_; }
    /// The user enlarges the content to `scale`, held within 1 and the maximum, while the point of the
    /// content under `anchor` (in the frame, from its upper left corner) stays there, as far as the content
    /// reaches.
    void zoomedTo(double scale, Point anchor);
    /// The offset nearest to `offset` at which the content, with the room at its ends, fills the frame.
    [[nodiscard]] Point nearestOffset(Point offset) const;
    /// Where scrolling ends.
    [[nodiscard]] Point lastOffset() const;
    /// How far the window scrolls beyond the content's upper and lower end.
    void setRoomAtEnds(double top, double bottom);

    /// The safe area as it falls on this view.
    [[nodiscard]] Insets safeAreaInsets() const { return safeAreaInsets_; }
    void setSafeAreaInsets(Insets insets) { safeAreaInsets_ = insets; }
    /// The pan that scrolls. The window reports its states; it moves nothing by itself.
    [[nodiscard]] const std::shared_ptr<PanGestureRecognizer>& panGestureRecognizer() const { return pan_; }

    /// The user scrolls without a finger, by a wheel or by keys, or turns to something else: what the cells
    /// hold open closes, as it does under a finger that scrolls.
    void closeOpenCells() { closings_.emit(); }
    [[nodiscard]] Subscription onCloseOpenCells(std::function<void()> closed) {
        return closings_.subscribe(std::move(closed));
    }

    /// Notified when the program scrolls, so that the window can follow.
    [[nodiscard]] Subscription onScrollRequest(std::function<void(Point offset, bool animated)> requested) {
        return scrollRequests_.subscribe(std::move(requested));
    }

protected:
    /// Called after the visible part has changed, whoever changed it.
    virtual void didScroll() {}

private:
    Size contentSize_;
    Size naturalSize_; ///< of the content at the scale 1
    View* zoomedView_ = nullptr;
    double zoomScale_ = 1;
    double maximumZoomScale_ = 1;
    Insets contentInset_;
    Insets safeAreaInsets_;
    double roomAbove_ = 0;
    double roomBelow_ = 0;
    std::shared_ptr<PanGestureRecognizer> pan_ = std::make_shared<PanGestureRecognizer>();
    Signal<Point, bool> scrollRequests_;
    Signal<> closings_;
};

} // namespace tessivo::ui
