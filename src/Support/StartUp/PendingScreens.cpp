#include "Support/StartUp/PendingScreens.h"

#include <algorithm>
#include <utility>

namespace tessivo {

PendingScreens::PendingScreens(ui::PresentationStack& stack)
    : stack_(stack), stackChanges_(stack.onChange([this] { showNext(); })) {}

void PendingScreens::show(std::shared_ptr<ui::ViewController> screen) {
    waiting_.push_back(std::move(screen));
    showNext();
}

void PendingScreens::showNext() {
    if (waiting_.empty() || stack_.isInTransition() || !stack_.top())
        return;
    if (const auto standing = standing_.lock();
        standing && std::ranges::count(stack_.screens(), standing) > 0)
        return;
    const auto next = waiting_.front();
    waiting_.pop_front();
    standing_ = next;
    stack_.top()->present(next);
}

} // namespace tessivo
