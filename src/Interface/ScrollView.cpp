#include "Interface/ScrollView.h"

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

void ScrollView::setContentOffset(Point offset) {
    scrolledTo(offset);
    scrollRequests_.emit(offset);
}

void ScrollView::scrolledTo(Point offset) {
    setBoundsOrigin(offset);
    didScroll();
}

} // namespace tessivo::ui
