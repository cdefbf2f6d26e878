#include "Interface/View.h"

#include "Interface/Animation.h"
#include "Interface/ControlRegistry.h"
#include "Interface/Gestures.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace tessivo::ui {
namespace {

constexpr double invisibleBelow = 0.01;

std::size_t indexOf(AnimatableProperty property) {
    return static_cast<std::size_t>(property);
}

} // namespace

View::View() = default;

View::View(ControlRegistry& registry, const std::string& name) : registry_(&registry) {
    registry.enter(name, *this);
}

View::~View() {
    for (const Lag& lag : lags_)
        lag.animator->forget(*this);
    if (superview_)
        superview_->letGoOf(*this);
    for (View* subview : subviews_)
        subview->superview_ = nullptr;
    for (const auto& recognizer : recognizers_)
        recognizer->view_ = nullptr;
    for (const auto& layer : sublayers_)
        layer->changed_ = nullptr;
}

void View::addSubview(View& view) {
    insertSubview(view, view.superview_ == this ? subviews_.size() - 1 : subviews_.size());
}

void View::insertSubview(View& view, std::size_t index) {
    if (view.superview_)
        view.superview_->letGoOf(view);
    view.superview_ = this;
    const auto place = std::min(index, subviews_.size());
    subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(place), &view);
    view.didMoveToSuperview();
    view.notify(ViewChange::Hierarchy);
    notify(ViewChange::Hierarchy);
}

void View::removeFromSuperview() {
    if (!superview_)
        return;
    superview_->letGoOf(*this);
    didMoveToSuperview();
    notify(ViewChange::Hierarchy);
}

void View::letGoOf(const View& subview) {
    std::erase(subviews_, &subview);
    const_cast<View&>(subview).superview_ = nullptr;
    notify(ViewChange::Hierarchy);
}

bool View::isDescendantOf(const View& view) const {
    for (const View* ancestor = this; ancestor; ancestor = ancestor->superview_) {
        if (ancestor == &view)
            return true;
    }
    return false;
}

Rect View::frame() const {
    using enum AnimatableProperty;
    const double width = value(Width);
    const double height = value(Height);
    return {value(CenterX) - width / 2, value(CenterY) - height / 2, width, height};
}

void View::setFrame(const Rect& frame) {
    using enum AnimatableProperty;
    if (frame.size() != this->frame().size())
        setNeedsLayout();
    setValue(Width, frame.width);
    setValue(Height, frame.height);
    setValue(CenterX, frame.midX());
    setValue(CenterY, frame.midY());
}

Rect View::bounds() const {
    using enum AnimatableProperty;
    return {value(BoundsX), value(BoundsY), value(Width), value(Height)};
}

void View::setBoundsOrigin(Point origin) {
    setValue(AnimatableProperty::BoundsX, origin.x);
    setValue(AnimatableProperty::BoundsY, origin.y);
}

Point View::center() const {
    return {value(AnimatableProperty::CenterX), value(AnimatableProperty::CenterY)};
}

Rect View::drawnFrame() const {
    using enum AnimatableProperty;
    const double width = drawnValue(Width);
    const double height = drawnValue(Height);
    return {drawnValue(CenterX) - width / 2, drawnValue(CenterY) - height / 2, width, height};
}

Point View::drawnBoundsOrigin() const {
    return {drawnValue(AnimatableProperty::BoundsX), drawnValue(AnimatableProperty::BoundsY)};
}

double View::value(AnimatableProperty property) const {
    return values_[indexOf(property)];
}

double View::drawnValue(AnimatableProperty property) const {
    double drawn = value(property);
    for (const Lag& lag : lags_) {
        if (lag.property == property)
            drawn += lag.left;
    }
    return drawn;
}

void View::setValue(AnimatableProperty property, double value) {
    double& held = values_[indexOf(property)];
    if (held == value)
        return;
    const double before = std::exchange(held, value);
    if (const auto* screen = animations(); screen && screen->block_) {
        lags_.push_back({screen->block_, property, before - value, before - value});
        screen->block_->join(*this);
    }
    notify(property == AnimatableProperty::Alpha ? ViewChange::Appearance : ViewChange::Geometry);
}

Animations* View::animations() const {
    const View* view = this;
    while (view->superview_)
        view = view->superview_;
    return view->animations_;
}

void View::progress(PropertyAnimator& animator, double fraction) {
    for (Lag& lag : lags_) {
        if (lag.animator == &animator)
            lag.left = lag.whole * (1 - fraction);
    }
    notify(changesOf(animator));
}

View::Changes View::changesOf(const PropertyAnimator& animator) const {
    Changes changes;
    for (const Lag& lag : lags_) {
        if (lag.animator == &animator)
            (lag.property == AnimatableProperty::Alpha ? changes.appearance : changes.geometry) = true;
    }
    return changes;
}

void View::notify(Changes changes) {
    if (changes.appearance)
        notify(ViewChange::Appearance);
    if (changes.geometry)
        notify(ViewChange::Geometry);
}

void View::settle(PropertyAnimator& animator, bool whereDrawn) {
    if (whereDrawn) {
        for (const Lag& lag : lags_) {
            if (lag.animator == &animator)
                values_[indexOf(lag.property)] += lag.left;
        }
    }
    const Changes changes = changesOf(animator);
    std::erase_if(lags_, [&](const Lag& lag) { return lag.animator == &animator; });
    notify(changes);
}

Point View::originInRoot() const {
    Point origin;
    for (const View* view = this; view; view = view->superview_) {
        origin.x += view->frame().x;
        origin.y += view->frame().y;
        if (view->superview_) {
            origin.x -= view->superview_->bounds().x;
            origin.y -= view->superview_->bounds().y;
        }
    }
    return origin;
}

Point View::convertTo(const View& view, Point point) const {
    const Point from = originInRoot();
    const Point to = view.originInRoot();
    return {point.x - bounds().x + from.x - to.x + view.bounds().x,
            point.y - bounds().y + from.y - to.y + view.bounds().y};
}

Rect View::convertTo(const View& view, const Rect& rect) const {
    const Point origin = convertTo(view, rect.origin());
    return {origin.x, origin.y, rect.width, rect.height};
}

void View::layoutIfNeeded() {
    if (std::exchange(needsLayout_, false))
        layoutSubviews();
    for (std::size_t index = 0; index < subviews_.size(); ++index)
        subviews_[index]->layoutIfNeeded();
}

View* View::hitTest(Point point) {
    const auto alive = lifetime();
    if (hidden_ || !interactionEnabled_ || alpha() < invisibleBelow || !pointInside(point) || alive.expired())
        return nullptr;
    const auto candidates = subviews_;
    for (auto candidate = candidates.rbegin(); candidate != candidates.rend(); ++candidate) {
        View* const subview = *candidate;
        if (std::ranges::find(subviews_, subview) == subviews_.end())
            continue;
        View* const hit = subview->hitTest(convertTo(*subview, point));
        if (hit || alive.expired())
            return hit;
    }
    return this;
}

bool View::pointInside(Point point) {
    return bounds().contains(point);
}

void View::addGestureRecognizer(std::shared_ptr<GestureRecognizer> recognizer) {
    if (recognizer->view_)
        recognizer->view_->removeGestureRecognizer(*recognizer);
    recognizer->view_ = this;
    recognizers_.push_back(std::move(recognizer));
}

void View::removeGestureRecognizer(const GestureRecognizer& recognizer) {
    std::erase_if(recognizers_, [&](const auto& held) {
        if (held.get() != &recognizer)
            return false;
        held->view_ = nullptr;
        return true;
    });
}

bool View::takesActs() const {
    for (const View* view = this; view; view = view->superview_) {
        if (view->registry_ && !view->registry_->takesActs())
            return false;
    }
    return true;
}

void View::tap() {
    if (!takesActs())
        return;
    const auto recognizers = recognizers_;
    for (const auto& recognizer : recognizers) {
        if (const auto tap = std::dynamic_pointer_cast<TapGestureRecognizer>(recognizer))
            tap->recognize({bounds().midX(), bounds().midY()});
    }
}

void View::setHidden(bool hidden) {
    if (std::exchange(hidden_, hidden) != hidden)
        notify(ViewChange::Appearance);
}

void View::setBackgroundColor(ColorRef color) {
    backgroundColor_ = std::move(color);
    notify(ViewChange::Appearance);
}

void View::setCornerRadius(double radius) {
    cornerRadius_ = radius;
    notify(ViewChange::Appearance);
}

void View::setClipsToBounds(bool clips) {
    clipsToBounds_ = clips;
    notify(ViewChange::Appearance);
}

void View::setMask(View* mask) {
    mask_ = mask;
    notify(ViewChange::Appearance);
}

void View::setAccessibilityName(std::string name) {
    accessibilityName_ = std::move(name);
    notify(ViewChange::Content);
}

void View::insertSublayer(std::shared_ptr<GradientLayer> layer, std::size_t index) {
    layer->changed_ = [this] { notify(ViewChange::Appearance); };
    const auto place = std::min(index, sublayers_.size());
    sublayers_.insert(sublayers_.begin() + static_cast<std::ptrdiff_t>(place), std::move(layer));
    notify(ViewChange::Appearance);
}

void View::removeSublayer(std::size_t index) {
    if (index >= sublayers_.size())
        return;
    sublayers_[index]->changed_ = nullptr;
    sublayers_.erase(sublayers_.begin() + static_cast<std::ptrdiff_t>(index));
    notify(ViewChange::Appearance);
}

void View::removeAllSublayers() {
    for (const auto& layer : std::exchange(sublayers_, {}))
        layer->changed_ = nullptr;
    notify(ViewChange::Appearance);
}

} // namespace tessivo::ui
