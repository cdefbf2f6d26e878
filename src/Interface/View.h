#pragma once

#include "Interface/Geometry.h"
#include "Interface/GradientLayer.h"
#include "Interface/Signal.h"
#include "Interface/Text.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessivo::ui {

class Animations;
class ControlRegistry;
class GestureRecognizer;
class PropertyAnimator;

/// What of a view has changed, so that a window redraws no more than it must. While an animation moves a
/// number, its kind of change comes with each frame.
enum class ViewChange {
    Content,    ///< text, image, enabled, menu: what a control shows
    Appearance, ///< colour, alpha, hidden, layers, mask
    Geometry,   ///< frame, bounds origin, transform
    Hierarchy   ///< subviews, or the superview
};

/// The numbers of a view that an animation can move.
enum class AnimatableProperty { CenterX, CenterY, Width, Height, BoundsX, BoundsY, Alpha, Scale };

/// The base of everything on a screen: a rectangle in its superview with subviews, gradient layers behind
/// them and gesture recognizers.
///
/// The tree does not own: a view that goes leaves its superview and lets go of its subviews. Main thread.
///
/// Every animatable number has a model value, which reads and writes at once, and a drawn value, which
/// animations let lag behind. Setting a number inside the block of an animator of the same screen moves the
/// drawn value over time; setting it outside moves both by the same amount. A view in no screen does not
/// animate.
class View {
public:
    View();
    View(ControlRegistry& registry, const std::string& name);
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    // Tree. Views draw over those before them.
    void addSubview(View& view);
    void insertSubview(View& view, std::size_t index);
    void removeFromSuperview();
    [[nodiscard]] View* superview() const { return superview_; }
    [[nodiscard]] const std::vector<View*>& subviews() const { return subviews_; }
    [[nodiscard]] bool isDescendantOf(const View& view) const;

    // Geometry. The frame is where the view lies in its superview; the bounds are its own space, whose origin
    // is what its subviews are moved by. The scale is drawn about the centre and touches neither.
    [[nodiscard]] Rect frame() const;
    void setFrame(const Rect& frame);
    [[nodiscard]] Rect bounds() const;
    void setBoundsOrigin(Point origin);
    [[nodiscard]] Point center() const;
    void setCenterX(double x) { setValue(AnimatableProperty::CenterX, x); }
    [[nodiscard]] double scale() const { return value(AnimatableProperty::Scale); }
    void setScale(double scale) { setValue(AnimatableProperty::Scale, scale); }
    [[nodiscard]] Rect drawnFrame() const;
    [[nodiscard]] Point drawnBoundsOrigin() const;
    [[nodiscard]] double value(AnimatableProperty property) const;
    [[nodiscard]] double drawnValue(AnimatableProperty property) const;

    /// `point` of this view's space in the space of `view`; both stand in one tree.
    [[nodiscard]] Point convertTo(const View& view, Point point) const;
    [[nodiscard]] Rect convertTo(const View& view, const Rect& rect) const;

    // Layout: a view marked for layout is laid out once, at the next layout pass.
    void setNeedsLayout() { needsLayout_ = true; }
    void layoutIfNeeded();

    // Touch.
    /// The deepest view under `point` (in this view's space) that takes touches; null where there is none.
    /// Hidden views, views of alpha below 0.01 and views with interaction off are passed over with all they
    /// hold. A view that is asked may take others away, or itself.
    [[nodiscard]] virtual View* hitTest(Point point);
    /// Whether `point` (in this view's space) is on this view.
    [[nodiscard]] virtual bool pointInside(Point point);
    void addGestureRecognizer(std::shared_ptr<GestureRecognizer> recognizer);
    void removeGestureRecognizer(const GestureRecognizer& recognizer);
    [[nodiscard]] const std::vector<std::shared_ptr<GestureRecognizer>>& gestureRecognizers() const {
        return recognizers_;
    }
    /// Whether the user's acts are for this view now: not while its screen slides or is covered, nor once it
    /// has left. Every act of the user on a control is refused then.
    [[nodiscard]] bool takesActs() const;
    /// The user taps this view: every tap recognizer on it recognises, in the order of adding.
    void tap();

    // Looks.
    [[nodiscard]] bool isHidden() const { return hidden_; }
    void setHidden(bool hidden);
    [[nodiscard]] double alpha() const { return value(AnimatableProperty::Alpha); }
    void setAlpha(double alpha) { setValue(AnimatableProperty::Alpha, alpha); }
    [[nodiscard]] const ColorRef& backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(ColorRef color);
    [[nodiscard]] double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius);
    [[nodiscard]] bool clipsToBounds() const { return clipsToBounds_; }
    void setClipsToBounds(bool clips);
    [[nodiscard]] bool isUserInteractionEnabled() const { return interactionEnabled_; }
    void setUserInteractionEnabled(bool enabled) { interactionEnabled_ = enabled; }
    [[nodiscard]] View* mask() const { return mask_; }
    /// Only what lies under `mask` (in this view's space) is drawn; null removes it. Not owned.
    void setMask(View* mask);
    [[nodiscard]] const std::string& accessibilityName() const { return accessibilityName_; }
    void setAccessibilityName(std::string name);

    // Layers lie behind the subviews; a later one draws over an earlier one.
    [[nodiscard]] const std::vector<std::shared_ptr<GradientLayer>>& sublayers() const { return sublayers_; }
    void insertSublayer(std::shared_ptr<GradientLayer> layer, std::size_t index);
    void removeSublayer(std::size_t index);
    void removeAllSublayers();

    /// `changed` is called after each change.
    [[nodiscard]] Subscription onChange(std::function<void(ViewChange)> changed) {
        return changes_.subscribe(std::move(changed));
    }

    /// Expires with the view, for work that may outlive it.
    [[nodiscard]] std::weak_ptr<const void> lifetime() const {
        if (!lifetime_)
            lifetime_ = std::make_shared<char>();
        return lifetime_;
    }

    /// The animations of the screen that this view is the root of; the screen sets it.
    void setAnimations(Animations* animations) { animations_ = animations; }
    /// The animations of the screen that holds this view; null in none.
    [[nodiscard]] Animations* animations() const;

protected:
    /// Places the subviews. Called by the layout pass with the frame settled.
    virtual void layoutSubviews() {}
    /// After this view has entered or left a superview.
    virtual void didMoveToSuperview() {}

    void setValue(AnimatableProperty property, double value);
    void notify(ViewChange change) { changes_.emit(change); }

private:
    friend class PropertyAnimator;

    /// A lag of the drawn value behind the model value, which an animator takes to zero.
    struct Lag {
        PropertyAnimator* animator;
        AnimatableProperty property;
        double whole; ///< at the animation's start
        double left;  ///< at the last frame
    };

    static constexpr std::size_t propertyCount = 8;

    /// What an animation changes of this view.
    struct Changes {
        bool appearance = false;
        bool geometry = false;
    };

    [[nodiscard]] Point originInRoot() const;
    void letGoOf(const View& subview);
    [[nodiscard]] Changes changesOf(const PropertyAnimator& animator) const;
    void notify(Changes changes);
    void progress(PropertyAnimator& animator, double fraction);
    void settle(PropertyAnimator& animator, bool whereDrawn);

    const ControlRegistry* registry_ = nullptr; ///< of the screen or cell that has this view by its name
    View* superview_ = nullptr;
    std::vector<View*> subviews_;
    std::array<double, propertyCount> values_{0, 0, 0, 0, 0, 0, 1, 1};
    std::vector<Lag> lags_;
    Animations* animations_ = nullptr;
    std::vector<std::shared_ptr<GradientLayer>> sublayers_;
    std::vector<std::shared_ptr<GestureRecognizer>> recognizers_;
    ColorRef backgroundColor_;
    std::string accessibilityName_;
    View* mask_ = nullptr;
    double cornerRadius_ = 0;
    bool hidden_ = false;
    bool clipsToBounds_ = false;
    bool interactionEnabled_ = true;
    bool needsLayout_ = true;
    Signal<ViewChange> changes_;
    mutable std::shared_ptr<const void> lifetime_;
};

} // namespace tessivo::ui
