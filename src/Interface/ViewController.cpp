#include "Interface/ViewController.h"

#include "Interface/PresentationStack.h"

#include <utility>

namespace tessivo::ui {

ViewController::~ViewController() = default;

View& ViewController::view() {
    loadViewIfNeeded();
    return view_;
}

void ViewController::loadViewIfNeeded() {
    if (std::exchange(loaded_, true))
        return;
    view_.setAnimations(&window_.animations);
    view_.setFrame({0, 0, screen().width(), screen().height()});
    screenChanges_ = screen().onChange([this] {
        view_.setFrame({0, 0, screen().width(), screen().height()});
        screenSizeDidChange();
    });
    viewDidLoad();
}

void ViewController::setBottomInset(double inset) {
    if (std::exchange(bottomInset_, inset) != inset)
        bottomInsetChanges_.emit();
}

ViewController* ViewController::presenter() {
    ViewController* outermost = this;
    while (outermost->parent_)
        outermost = outermost->parent_;
    return outermost;
}

void ViewController::present(std::shared_ptr<ViewController> screen, bool animated,
                             std::function<void()> completion) {
    ViewController* base = presenter();
    if (base->stack_)
        base->stack_->present(*base, std::move(screen), animated, std::move(completion));
}

void ViewController::dismiss(bool animated, std::function<void()> completion) {
    ViewController* base = presenter();
    if (!base->stack_)
        return;
    const ViewController* keep = base->presentedViewController() ? base : base->presentingViewController();
    if (keep)
        base->stack_->dismissAbove(*keep, animated, std::move(completion));
}

ViewController* ViewController::presentedViewController() const {
    const ViewController* outermost = this;
    while (outermost->parent_)
        outermost = outermost->parent_;
    return outermost->stack_ ? outermost->stack_->above(*outermost) : nullptr;
}

ViewController* ViewController::presentingViewController() const {
    const ViewController* outermost = this;
    while (outermost->parent_)
        outermost = outermost->parent_;
    return outermost->stack_ ? outermost->stack_->below(*outermost) : nullptr;
}

bool ViewController::takesActs() const {
    const ViewController* outermost = this;
    while (outermost->parent_)
        outermost = outermost->parent_;
    if (!outermost->stack_)
        return !outermost->hasLeft_;
    return !outermost->stack_->isInTransition() && outermost->stack_->top() == outermost;
}

void ViewController::enterStack(PresentationStack* stack) {
    hasLeft_ = stack_ && !stack;
    stack_ = stack;
}

void ViewController::beginAppearing() {
    loadViewIfNeeded();
    viewWillAppear();
    childrenWillAppear();
}

void ViewController::finishAppearing() {
    viewDidAppear();
    childrenDidAppear();
}

void ViewController::beginDisappearing() {
    viewWillDisappear();
    childrenWillDisappear();
}

} // namespace tessivo::ui
