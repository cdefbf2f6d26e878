#include "Interface/PresentationStack.h"

#include "Interface/Transitioning.h"

#include <algorithm>
#include <utility>

namespace tessivo::ui {
namespace {

bool coversWhatIsBelow(const ViewController& screen) {
    return screen.modalPresentationStyle == PresentationStyle::FullScreen ||
           screen.modalPresentationStyle == PresentationStyle::Custom;
}

} // namespace

PresentationStack::~PresentationStack() {
    for (const auto& screen : screens_)
        screen->enterStack(nullptr);
}

void PresentationStack::setRoot(const std::shared_ptr<ViewController>& root) {
    const auto former = std::exchange(screens_, {});
    if (!former.empty())
        former.back()->beginDisappearing();
    for (const auto& screen : former)
        screen->enterStack(nullptr);
    screens_.push_back(root);
    root->enterStack(this);
    root->beginAppearing();
    changes_.emit();
    root->finishAppearing();
}

ViewController* PresentationStack::above(const ViewController& screen) const {
    const auto found =
        std::ranges::find_if(screens_, [&](const auto& held) { return held.get() == &screen; });
    return found == screens_.end() || found + 1 == screens_.end() ? nullptr : (found + 1)->get();
}

ViewController* PresentationStack::below(const ViewController& screen) const {
    const auto found =
        std::ranges::find_if(screens_, [&](const auto& held) { return held.get() == &screen; });
    return found == screens_.end() || found == screens_.begin() ? nullptr : (found - 1)->get();
}

/// The full screen that shows where the stack ends before `index`.
ViewController& PresentationStack::covered(std::size_t index) const {
    std::size_t place = index - 1;
    while (place > 0 && !coversWhatIsBelow(*screens_[place]))
        --place;
    return *screens_[place];
}

void PresentationStack::present(ViewController& presenter, const std::shared_ptr<ViewController>& screen,
                                bool animated, std::function<void()> completion) {
    if (isInTransition() || screens_.empty() || screens_.back().get() != &presenter)
        return; // it presents another already, or is itself on its way
    ViewController& uncovered = covered(screens_.size());
    const bool covers = coversWhatIsBelow(*screen);
    screens_.push_back(screen);
    screen->enterStack(this);
    screen->loadViewIfNeeded();
    if (covers)
        uncovered.beginDisappearing();
    screen->beginAppearing();

    std::shared_ptr<AnimatedTransitioning> transition;
    if (const auto chooser = screen->transitioningDelegate.lock();
        chooser && animated && screen->modalPresentationStyle == PresentationStyle::Custom)
        transition = chooser->animationControllerForPresented(*screen);
    run(transition, uncovered.view(), screen->view(), [screen, completion = std::move(completion)] {
        screen->finishAppearing();
        if (completion)
            completion();
    });
}

void PresentationStack::dismissAbove(const ViewController& base, bool animated,
                                     std::function<void()> completion) {
    const auto found = std::ranges::find_if(screens_, [&](const auto& held) { return held.get() == &base; });
    if (isInTransition() || found == screens_.end() || found + 1 == screens_.end())
        return;
    const auto first = static_cast<std::size_t>(found + 1 - screens_.begin());
    const std::vector dismissed(screens_.begin() + static_cast<std::ptrdiff_t>(first), screens_.end());
    const bool uncovers =
        std::ranges::any_of(dismissed, [](const auto& screen) { return coversWhatIsBelow(*screen); });
    const auto& top = dismissed.back();
    // What is seen to leave is the topmost full screen; where only sheets and alerts go, nothing slides.
    const auto leaving = std::ranges::find_if(dismissed.rbegin(), dismissed.rend(),
                                              [](const auto& screen) { return coversWhatIsBelow(*screen); });
    const auto left = leaving == dismissed.rend() ? top : *leaving;
    const auto uncovered = covered(first).shared_from_this();

    top->beginDisappearing();
    if (uncovers)
        uncovered->beginAppearing();
    std::shared_ptr<AnimatedTransitioning> transition;
    if (const auto chooser = left->transitioningDelegate.lock();
        chooser && animated && uncovers && left->modalPresentationStyle == PresentationStyle::Custom)
        transition = chooser->animationControllerForDismissed(*left);

    const auto goAway = [this, dismissed, uncovered, uncovers, completion = std::move(completion)] {
        for (const auto& screen : dismissed) {
            screen->enterStack(nullptr);
            std::erase(screens_, screen);
        }
        if (uncovers)
            uncovered->finishAppearing();
        if (completion)
            completion();
    };
    run(transition, left->view(), uncovered->view(), goAway);
}

void PresentationStack::run(const std::shared_ptr<AnimatedTransitioning>& transition, View& from, View& to,
                            std::function<void()> ended) {
    if (!transition) {
        ended();
        changes_.emit();
        return;
    }
    transition_ = transition;
    changes_.emit();
    transition->animateTransition({from, to, [this, alive = std::weak_ptr(alive_), ended = std::move(ended)] {
                                       if (alive.expired())
                                           return;
                                       transition_ = nullptr;
                                       ended();
                                       changes_.emit();
                                   }});
}

} // namespace tessivo::ui
