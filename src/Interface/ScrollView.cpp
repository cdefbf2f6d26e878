#include "Interface/ScrollView.h"

#include <algorithm>

namespace tessivo::ui {

ScrollView::ScrollView() {
    addGestureRecognizer(pan_);
}

ScrollView::ScrollView(ControlRegistry& registry, std::string name) : View(registry, std::move(name)) {
    addGestureRecognizer(pan_);
}

void ScrollView::setContentSize(Size size) {
    contentSize_ = size;
    notify(ViewChange::Content);
}

void ScrollView::setContentInset(Insets insets) {
    contentInset_ = insets;
    notify(ViewChange::Content);
}

void ScrollView::setContentOffset(Point offset, bool animated) {
    if (!animated || !scrollRequests_.hasSubscribers())
        scrolledTo(offset);
    scrollRequests_.emit(offset, animated);
}

void ScrollView::setZoomedContent(Size size, double maximumScale) {
    naturalSize_ = size;
    maximumZoomScale_ = maximumScale;
    zoomedTo(1, {});
}

void ScrollView::zoomedTo(double scale, Point anchor) {
    const double former = zoomScale_;
    zoomScale_ = std::clamp(scale, 1.0, maximumZoomScale_);
    const Size size{naturalSize_.width * zoomScale_, naturalSize_.height * zoomScale_};
    if (zoomedView_)
        zoomedView_->setFrame({0, 0, size.width, size.height});
    setContentSize(size);
    const double growth = zoomScale_ / former;
    const Point offset = contentOffset();
    scrolledTo(nearestOffset(
        {(offset.x + anchor.x) * growth - anchor.x, (offset.y + anchor.y) * growth - anchor.y}));
}

Point ScrollView::nearestOffset(Point offset) const {
    const Point last = lastOffset();
    return {std::clamp(offset.x, 0.0, last.x), std::clamp(offset.y, -roomAbove_, last.y)};
}

Point ScrollView::lastOffset() const {
    return {std::max(0.0, contentSize_.width - bounds().width),
            std::max(-roomAbove_, contentSize_.height + roomBelow_ - bounds().height)};
}

void ScrollView::setRoomAtEnds(double top, double bottom) {
    roomAbove_ = top;
    roomBelow_ = bottom;
}

void ScrollView::scrolledTo(Point offset) {
    setBoundsOrigin(offset);
    didScroll();
}

} // namespace tessivo::ui
