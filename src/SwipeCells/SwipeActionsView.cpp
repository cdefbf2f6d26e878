#include "SwipeCells/SwipeActionsView.h"

#include "Interface/ScrollView.h"
#include "Ports/MainQueue.h"
#include "SwipeCells/ScaleAndAlphaExpansion.h"
#include "SwipeCells/SwipeActionTransitioning.h"

#include <algorithm>

namespace tessivo::swipe {
namespace {

constexpr double defaultButtonMargin = 8;
constexpr double widthKeptFree = 30;
constexpr double defaultMinimumWidth = 74;
constexpr double elasticShare = 0.25;
constexpr double expansionDamping = 1;
constexpr Color plainGround{0.7803494, 0.7761332, 0.7967314, 1};
constexpr Color destructiveGround{1, 0.2352941, 0.1882353, 1};

} // namespace

SwipeActionsView::SwipeActionsView(const SwipeEnvironment& environment, ui::Insets contentInsets,
                                   ui::Size maximumSize, const ui::ScrollView* safeAreaView,
                                   SwipeOptions options, SwipeActionsOrientation orientation,
                                   SwipeActions actions)
    : environment_(environment),
      contentInsets_(contentInsets),
      safeAreaInsetView_(safeAreaView),
      options_(std::move(options)),
      orientation_(orientation),
      actions_(std::move(actions)),
      transitionLayout_(makeTransitionLayout(options_.transitionStyle)),
      feedbackGenerator_(environment.impactGenerator) {
    std::ranges::reverse(actions_);
    layoutContext_.numberOfActions = static_cast<int>(actions_.size());
    layoutContext_.orientation = orientation_;
    feedbackGenerator_.prepare();
    setClipsToBounds(true);
    setBackgroundColor(options_.backgroundColor.value_or(ui::ColorRef::of(plainGround)));
    hasTransitions_ = std::ranges::any_of(
        actions_, [](const auto& action) { return action->transitionDelegate != nullptr; });
    oldWidths_.resize(actions_.size());
    newWidths_.resize(actions_.size());
    buildButtons(maximumSize);
}

void SwipeActionsView::buildButtons(ui::Size maximumSize) {
    const double padding = options_.buttonPadding.value_or(defaultButtonMargin);
    double imageHeight = 0;
    for (const auto& action : actions_) {
        auto& button = buttonStore_.emplace_back(*action, environment_.texts);
        button.addTarget(ui::PressEvent::UpInside, [this, index = buttons_.size()] { actionTapped(index); });
        button.spacing = options_.buttonSpacing.value_or(defaultButtonMargin);
        button.contentInsets = {padding, padding, padding, padding};
        button.verticalAlignment = options_.buttonVerticalAlignment;
        button.shouldHighlight = action->paintsOwnBackground();
        buttons_.push_back(&button);
        imageHeight = std::max(imageHeight, action->image ? action->image->size.height : 0);
    }
    reversedButtons_.assign(buttons_.rbegin(), buttons_.rend());
    const double maximum = options_.maximumButtonWidth.value_or((maximumSize.width - widthKeptFree) /
                                                                static_cast<double>(actions_.size()));
    minimumButtonWidth_ = options_.minimumButtonWidth.value_or(std::min(maximum, defaultMinimumWidth));
    for (auto& button : buttonStore_) {
        minimumButtonWidth_ = std::max(minimumButtonWidth_, button.preferredWidth(maximum));
        button.maximumImageHeight = imageHeight;
    }
    for (std::size_t index = 0; index < actions_.size(); ++index)
        addWrapper(index);
}

void SwipeActionsView::addWrapper(std::size_t index) {
    const SwipeAction& action = *actions_[index];
    const ui::Rect frame{0, 0, bounds().width * 2, bounds().height};
    auto& wrapper = *wrappers_.emplace_back(
        std::make_unique<SwipeActionButtonWrapperView>(frame, orientation_, minimumButtonWidth_));
    if (action.paintsOwnBackground()) {
        const bool destructive = action.style == SwipeActionStyle::Destructive;
        wrapper.setActionBackgroundColor(
            action.backgroundColor.value_or(ui::ColorRef::of(destructive ? destructiveGround : plainGround)));
    }
    wrapper.addSubview(*buttons_[index]);
    buttons_[index]->setFrame(wrapper.contentRect);
    if (!action.backgroundEffect) {
        addSubview(wrapper);
        return;
    }
    auto& effect = *effectViews_.emplace_back(std::make_unique<VisualEffectView>(*action.backgroundEffect));
    effect.setFrame(frame);
    effect.addSubview(wrapper);
    addSubview(effect);
}

double SwipeActionsView::safeMargin() const {
    if (!safeAreaInsetView_)
        return 0;
    const ui::Insets insets = safeAreaInsetView_->safeAreaInsets();
    return orientation_ == SwipeActionsOrientation::Left ? insets.left : insets.right;
}

double SwipeActionsView::naturalRowWidth() const {
    return minimumButtonWidth_ * static_cast<double>(actions_.size()) + safeMargin();
}

ui::Size SwipeActionsView::contentSize() const {
    const double natural = naturalRowWidth();
    const bool elastic = options_.expansionStyle && options_.expansionStyle->elasticOverscroll;
    if (!elastic || visibleWidth_ < natural)
        return {visibleWidth_, bounds().height};
    return {natural + (visibleWidth_ - natural) * elasticShare, bounds().height};
}

std::shared_ptr<SwipeAction> SwipeActionsView::expansionCarrier() const {
    return options_.expansionStyle && !actions_.empty() ? actions_.back() : nullptr;
}

ActionsViewLayoutContext SwipeActionsView::makeContext() const {
    return {static_cast<int>(actions_.size()), orientation_, contentSize(), visibleWidth_,
            minimumButtonWidth_};
}

void SwipeActionsView::setVisibleWidth(double width) {
    visibleWidth_ = std::max(0.0, width - safeMargin());
    transitionLayout_->visibleButtonWidths(layoutContext_, oldWidths_);
    layoutContext_ = makeContext();
    transitionLayout_->visibleWidthChanged(*this, layoutContext_);
    setNeedsLayout();
    layoutIfNeeded();
    transitionLayout_->visibleButtonWidths(layoutContext_, newWidths_);
    if (hasTransitions_ && oldWidths_ != newWidths_)
        reportTransitions();
}

void SwipeActionsView::reportTransitions() {
    environment_.mainQueue.post([weak = weak_from_this(), oldWidths = oldWidths_, newWidths = newWidths_] {
        const auto view = weak.lock();
        if (!view)
            return;
        for (std::size_t index = 0; index < newWidths.size(); ++index) {
            const SwipeAction& action = *view->actions_[index];
            if (oldWidths[index] == newWidths[index] || !action.transitionDelegate)
                continue;
            const double whole = view->minimumButtonWidth_;
            action.transitionDelegate->didTransition(
                {action.identifier, *view->buttons_[index], newWidths[index] / whole,
                 oldWidths[index] / whole, *view->subviews()[index], view->environment_.animations});
        }
    });
}

void SwipeActionsView::layoutSubviews() {
    for (std::size_t index = 0; index < subviews().size(); ++index) {
        ui::View& subview = *subviews()[index];
        layoutWrapper(subview, buttonStore_[index]);
        transitionLayout_->layoutSubview(subview, static_cast<int>(index), layoutContext_);
    }
    if (expanded_ && !subviews().empty()) {
        ui::View& last = *subviews().back();
        const ui::Rect frame = last.frame();
        last.setFrame({bounds().x, frame.y, frame.width, frame.height});
    }
}

/// As wide as the row and as high as it less the insets, but for one thing: where the row is cut, the button
/// keeps its height and reaches beyond the cut edge.
void SwipeActionsView::layoutWrapper(ui::View& subview, const SwipeActionButton& button) {
    const auto [top, left, bottom, right] = contentInsets_;
    double height = bounds().height - top - bottom;
    if (contentInsets_ != ui::Insets{})
        height = std::max(height, button.intrinsicHeight());
    const bool hangsFromBelow = top != 0 && bottom == 0;
    const double y = hangsFromBelow ? bounds().height - height : top;
    subview.setFrame({subview.frame().x, y, bounds().width, height});
}

const SwipeExpanding* SwipeActionsView::expansionDelegate() const {
    static const ScaleAndAlphaExpansion standard;
    if (options_.expansionDelegate)
        return options_.expansionDelegate.get();
    const auto action = expansionCarrier();
    return action && !action->paintsOwnBackground() ? &standard : nullptr;
}

void SwipeActionsView::setExpanded(bool expanded, bool feedback) {
    if (expanded_ == expanded)
        return;
    expanded_ = expanded;
    if (feedback) {
        feedbackGenerator_.impactOccurred();
        feedbackGenerator_.prepare();
    }
    const auto* expanding = expansionDelegate();
    const auto timing = expanding ? expanding->timingParameters(reversedButtons_, expanded)
                                  : SwipeExpansionAnimationTimingParameters{};
    if (expansionAnimator_ && expansionAnimator_->isRunning())
        expansionAnimator_->stopAnimation(true);
    expansionAnimator_ = ui::PropertyAnimator::make(environment_.animations,
                                                    ui::DampedOver{timing.duration, expansionDamping});
    expansionAnimator_->addAnimations([weak = weak_from_this()] {
        if (const auto view = weak.lock()) {
            view->setNeedsLayout();
            view->layoutIfNeeded();
        }
    });
    expansionAnimator_->startAnimation(timing.delay);
    if (expanding && !buttons_.empty())
        expanding->buttonDidChange(environment_.animations, *buttons_.back(), expanded,
                                   std::span(reversedButtons_).subspan(1));
}

void SwipeActionsView::actionTapped(std::size_t index) {
    // The action may take the row away while its button is still calling: it goes in a later turn.
    environment_.mainQueue.post([self = shared_from_this()] {});
    if (const auto listener = delegate.lock())
        listener->didSelect(*this, actions_[index]);
}

std::unique_ptr<ui::View> SwipeActionsView::makeDeletionMask() const {
    auto mask = std::make_unique<ui::View>();
    mask->setBackgroundColor(ui::ColorRef::white());
    mask->setFrame({std::min(0.0, frame().minX()), 0, bounds().width * 2, bounds().height});
    return mask;
}

} // namespace tessivo::swipe
