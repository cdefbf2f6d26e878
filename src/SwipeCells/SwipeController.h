#pragma once

#include "Interface/Gestures.h"
#include "SwipeCells/SwipeActionsView.h"
#include "SwipeCells/SwipeControllerDelegate.h"
#include "SwipeCells/SwipeEnvironment.h"
#include "SwipeCells/Swipeable.h"

namespace tessivo::swipe {

using SwipeAnimator = ui::PropertyAnimator;

// The engine of one cell. A pan moves the cell's container and uncovers a row of buttons beside it; the
// release lets the container settle open or closed; an action is carried out by a tap on its button, or by
// the release of a row that has expanded.
//
//   Center, AnimatingToCenter --pan begins, actions exist--> Dragging --release--> Left | Right | Center
//   Left, Right --hide--> AnimatingToCenter --settled--> Center
//
// A hide leaves a cell alone that is in Dragging: what a finger holds nothing else closes. Lengths are in
// points, velocities in points a second. Main thread.
//
// A release into Center passes through the settling with the state Center already; the row goes at its end.

class SwipeController final : public ui::GestureRecognizerDelegate,
                              public SwipeActionsViewDelegate,
                              public std::enable_shared_from_this<SwipeController> {
public:
    using Completion = std::function<void(bool finished)>;

    /// Puts its recognizers on the cell. `container` is the view that is moved, maybe the cell itself. Cell,
    /// container and delegate outlive the call of `letGo`; the cell owns its controller.
    [[nodiscard]] static std::shared_ptr<SwipeController> make(SwipeEnvironment environment,
                                                               Swipeable& swipeable, ui::View& container,
                                                               SwipeControllerDelegate& delegate);

    /// The cell is going: from now on nothing happens.
    void letGo();
    /// The list that holds the cell, or null.
    void setScrollView(ui::ScrollView* list) { scrollView_ = list; }

    [[nodiscard]] const std::shared_ptr<ui::PanGestureRecognizer>& panGestureRecognizer() const {
        return panGestureRecognizer_;
    }
    [[nodiscard]] const std::shared_ptr<ui::TapGestureRecognizer>& tapGestureRecognizer() const {
        return tapGestureRecognizer_;
    }
    [[nodiscard]] ui::Insets originalLayoutMargins() const { return originalLayoutMargins_; }
    [[nodiscard]] double scrollRatio() const { return scrollRatio_; }
    /// A settling is under way.
    [[nodiscard]] bool isSettling() const { return animator_ && animator_->isRunning(); }

    [[nodiscard]] bool gestureRecognizerShouldBegin(ui::GestureRecognizer& recognizer) override;
    void didSelect(SwipeActionsView& view, const std::shared_ptr<SwipeAction>& action) override;

    /// The pan's next step, by the state of its recognizer.
    void handlePan();
    /// A tap on an open cell closes it.
    void handleTap();
    /// Closes an open cell; the owner hears that editing has ended. `completion` is called when an animated
    /// hide has ended, with the row gone, and never for one that is not animated or that something replaces.
    void hideSwipe(bool animated, Completion completion = {});
    /// Opens the cell by `offset`: to the right above 0, to the left below; 0 closes it. The largest length
    /// there is opens it as far as the row is wide. All other cells are closed. Nothing happens where the
    /// owner has no actions. `completion` as for `hideSwipe`.
    void setSwipeOffset(double offset, bool animated, Completion completion = {});
    /// Closes, animated, all cells of the list but `except`, which may be null.
    void hideCells(const Swipeable* except);
    /// The state and the row only; the container stays where it is.
    void reset();
    /// Another item may take the cell: whatever moves stops, so that nothing of this item's swipe is left
    /// over.
    void abandon();
    /// A finger comes onto the cell: a settling stops where it is drawn. Says whether there was one. A fill
    /// goes on, since its action waits for its end.
    bool holdStill();
    /// The finger has gone. What it has stopped settles after all, where nothing else has moved it since.
    void moveOn();
    /// After a change of the screen's traits: an open cell settles anew, at once.
    void traitsDidChange();
    /// Hangs the row on the container's edge, in the cell's present size.
    void layoutActionsView();

    /// Where the finger has pulled a container that gives way to it freely up to `limit` from the middle of
    /// the gesture's view, and by `ratio` beyond.
    [[nodiscard]] static double elasticTranslation(const ui::PanGestureRecognizer& gesture,
                                                   double originalCenter, double limit, double ratio = 0.2);

private:
    static constexpr Seconds settleDuration{0.7};

    SwipeController(SwipeEnvironment environment, Swipeable& swipeable, ui::View& container,
                    SwipeControllerDelegate& delegate);

    void panBegan(double velocity);
    [[nodiscard]] bool givesWay() const;
    [[nodiscard]] bool isFilling() const;
    void panChanged();
    void panReleased(double velocity);
    void stretch(const SwipeExpansionStyle& style, double offset);
    bool showActionsView(SwipeActionsOrientation orientation);
    void configureActionsView(SwipeActions actions, SwipeActionsOrientation orientation);
    [[nodiscard]] ui::Insets insetsFor(const std::optional<ui::Rect>& visible) const;
    void moveTo(double centerX);
    void giveVisibleWidth();
    void animateTo(double centerX, Seconds duration, double velocity, Completion completion);
    void stopAnimator();
    void goBack(Completion completion);
    [[nodiscard]] double targetCenter(bool active) const;
    [[nodiscard]] SwipeState targetState(double velocity) const;
    void resetPosition();
    void perform(const std::shared_ptr<SwipeAction>& action);
    void perform(SwipeAction& action, bool hide);
    void fill(const std::shared_ptr<SwipeAction>& action, SwipeExpansionStyle::FillOptions options);
    void fillEnded(SwipeActionsOrientation orientation, int indexPath, double newCenter,
                   ExpansionFulfillmentStyle style, HandlerInvocationTiming timing);
    void removeCell(int indexPath, double newCenter, HandlerInvocationTiming timing);

    [[nodiscard]] ui::View& cell() const { return swipeable_->swipedView(); }
    [[nodiscard]] Swipeable* firstCell(bool (*condition)(const Swipeable&)) const;

    SwipeEnvironment environment_;
    Swipeable* swipeable_;
    ui::View* actionsContainerView_;
    SwipeControllerDelegate* delegate_;
    ui::ScrollView* scrollView_ = nullptr;
    std::shared_ptr<SwipeAnimator> animator_;
    double originalCenter_ = 0;
    double scrollRatio_ = 1;
    bool heldStill_ = false;
    bool ignoresPan_ = false; ///< the present pan began while another cell was under a finger
    ui::Insets originalLayoutMargins_;
    std::shared_ptr<ui::PanGestureRecognizer> panGestureRecognizer_ =
        std::make_shared<ui::PanGestureRecognizer>();
    std::shared_ptr<ui::TapGestureRecognizer> tapGestureRecognizer_ =
        std::make_shared<ui::TapGestureRecognizer>();
    std::unique_ptr<ui::View> deletionMask_;
};

} // namespace tessivo::swipe
