#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/MainScreen.h"
#include "Interface/View.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessivo::ui {

class Animations;
class PresentationStack;
class TransitioningDelegate;

/// What all screens of a window share.
struct WindowContext {
    MainScreen& screen;
    Animations& animations;
};

/// How a screen stands over the one that presents it.
enum class PresentationStyle {
    FullScreen, ///< covers it, without a slide of its own
    Custom,     ///< covers it, moved in and out by the transitioning delegate
    Sheet,      ///< rises from the foot of the screen; dragged down or tapped beside, it goes
    Alert,      ///< floats in the middle
    ActionSheet ///< rises from the foot of the screen; a popover on a large screen
};

/// How tall a sheet stands, in points; empty leaves it to the window.
struct SheetPresentation {
    std::optional<double> height;
};

/// One screen: its controls, its life and what it presents.
///
/// The view is loaded (`viewDidLoad`) at its first showing, once. A screen that covers another gives that one
/// `viewWillDisappear`, and back `viewWillAppear` and `viewDidAppear` when it goes; sheets, alerts and action
/// sheets give it none. The order at a presentation: presented `viewDidLoad`, presenter `viewWillDisappear`,
/// presented `viewWillAppear`, and at the transition's end presented `viewDidAppear`; at a dismissal:
/// dismissed `viewWillDisappear`, presenter `viewWillAppear`, and at the end presenter `viewDidAppear`. Main
/// thread.
class ViewController : public std::enable_shared_from_this<ViewController> {
public:
    explicit ViewController(WindowContext& window) : window_(window) {
        controls.setTakesActs([this] { return takesActs(); });
    }
    virtual ~ViewController();
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;

    ControlRegistry controls;

    /// The name under which a window finds the drawing of this screen.
    [[nodiscard]] virtual std::string screenName() const = 0;

    /// The root of the screen's views, as large as the main screen; loads it at the first call.
    View& view();
    void loadViewIfNeeded();
    [[nodiscard]] bool isViewLoaded() const { return loaded_; }

    PresentationStyle modalPresentationStyle = PresentationStyle::FullScreen;
    std::weak_ptr<TransitioningDelegate> transitioningDelegate;
    SheetPresentation sheetPresentation;

    /// Shows `screen` over this one, and keeps it while it stands. Ignored while this screen, or the screen
    /// that holds it, presents another already, and while this screen is not shown in a window
    /// or a transition runs.
    void present(std::shared_ptr<ViewController> screen, bool animated = true,
                 std::function<void()> completion = {});
    /// Takes away the screen that this one presents with all above it or, where it presents none, itself.
    /// Ignored while a transition runs.
    void dismiss(bool animated = true, std::function<void()> completion = {});

    /// How far the controls at the foot of the screen stay above it while the on-screen keyboard is up, in
    /// points.
    [[nodiscard]] double bottomInset() const { return bottomInset_; }
    void setBottomInset(double inset);
    [[nodiscard]] Subscription onBottomInsetChange(std::function<void()> changed) {
        return bottomInsetChanges_.subscribe(std::move(changed));
    }

    [[nodiscard]] ViewController* presentedViewController() const;
    [[nodiscard]] ViewController* presentingViewController() const;
    [[nodiscard]] ViewController* parent() const { return parent_; }

    /// Whether the user's acts are for this screen: false while another covers it, while a transition runs
    /// and once it has left the window. A screen that no window has shown yet may be tried without one.
    [[nodiscard]] bool takesActs() const;

    // Called by the presentation stack and by containers, never by the screen itself.
    void beginAppearing();
    void finishAppearing();
    void beginDisappearing();
    void enterStack(PresentationStack* stack);
    void setParent(ViewController* parent) { parent_ = parent; }

protected:
    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear() {}
    /// The main screen has another size; the view has it already.
    virtual void screenSizeDidChange() {}

    // Containers hand the calls on to what they show, after their own.
    virtual void childrenWillAppear() {}
    virtual void childrenDidAppear() {}
    virtual void childrenWillDisappear() {}

    [[nodiscard]] WindowContext& window() const { return window_; }
    [[nodiscard]] MainScreen& screen() const { return window_.screen; }

    /// This object as one of the protocols that it adopts, for a weak delegate.
    template <class Protocol>
    [[nodiscard]] std::weak_ptr<Protocol> weakSelf(Protocol* self) {
        return std::shared_ptr<Protocol>(shared_from_this(), self);
    }

private:
    [[nodiscard]] ViewController* presenter();

    WindowContext& window_;
    View view_{controls, "view"};
    PresentationStack* stack_ = nullptr;
    bool hasLeft_ = false; ///< a window has shown it, and does no more
    ViewController* parent_ = nullptr;
    Subscription screenChanges_;
    double bottomInset_ = 16;
    Signal<> bottomInsetChanges_;
    bool loaded_ = false;
};

} // namespace tessivo::ui
