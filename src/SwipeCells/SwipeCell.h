#pragma once

#include "Interface/CollectionViewCell.h"
#include "SwipeCells/SwipeAccessibilityCustomAction.h"
#include "SwipeCells/SwipeController.h"

namespace tessivo::ui {
class ScrollView;
}

namespace tessivo::swipe {

/// What the cells of every kind of list have in common: one controller each, their own state, and the road
/// between the controller and the owner of the list. Main thread.
class SwipeCell : public ui::CollectionViewCell, public Swipeable, public SwipeControllerDelegate {
public:
    ~SwipeCell() override;

    [[nodiscard]] SwipeState state() const override { return state_; }
    void setState(SwipeState state) override { state_ = state; }
    [[nodiscard]] SwipeActionsView* actionsView() const override { return actionsView_.get(); }
    void setActionsView(std::shared_ptr<SwipeActionsView> view) override;
    [[nodiscard]] ui::View& swipedView() override { return *this; }
    [[nodiscard]] const ui::View& swipedView() const override { return *this; }
    [[nodiscard]] const ui::PanGestureRecognizer& panGestureRecognizer() const override {
        return *controller_->panGestureRecognizer();
    }
    [[nodiscard]] SwipeController& swipeController() { return *controller_; }

    // As of the controller.
    void hideSwipe(bool animated) override { controller_->hideSwipe(animated); }
    void hideSwipe(bool animated, SwipeController::Completion completion) {
        controller_->hideSwipe(animated, std::move(completion));
    }
    /// Opens the row of that side as far as it is wide.
    void showSwipe(SwipeActionsOrientation orientation, bool animated,
                   SwipeController::Completion completion = {});
    void setSwipeOffset(double offset, bool animated, SwipeController::Completion completion = {}) {
        controller_->setSwipeOffset(offset, animated, std::move(completion));
    }
    /// The screen has turned or its margins have changed. A cell of another size sees to it by itself.
    void traitsDidChange() { controller_->traitsDidChange(); }

    /// While the cell is moved its margins stay those of before.
    [[nodiscard]] ui::Insets layoutMargins() const;
    void setLayoutMargins(ui::Insets margins) { layoutMargins_ = margins; }
    [[nodiscard]] ui::Insets swipeLayoutMargins() const override { return layoutMargins(); }

    /// The list does not move a displaced cell sideways.
    void place(const ui::Rect& frame) override;
    /// Ignored but for a cell at rest.
    void setHighlighted(bool highlighted) override;
    /// An open cell, or one on its way, can be caught in its motion; one whose row fills cannot.
    bool holdStill() override { return controller_->holdStill(); }
    void moveOn() override { controller_->moveOn(); }
    [[nodiscard]] ui::View* hitTest(ui::Point point) override;
    /// Hit-testing the first cell for a touch beside an open cell closes all cells, and misses.
    [[nodiscard]] bool pointInside(ui::Point point) override;
    void prepareForReuse() override;
    void willLeaveWindow() override;

    /// The one element of a cell that is off its place; null while the cell's own elements stand.
    [[nodiscard]] SwipeActionsView* accessibilityElement() const;
    /// All actions of both sides, the nearest first; empty where no list holds the cell.
    [[nodiscard]] std::vector<SwipeAccessibilityCustomAction> accessibilityCustomActions();
    /// Calls the handler; a destructive action takes the item from the list too. False without a list.
    bool performAccessibilityCustomAction(const SwipeAccessibilityCustomAction& custom);
    [[nodiscard]] std::vector<std::string> accessibilityActionNames() override;
    bool performAccessibilityAction(const std::string& name) override;

protected:
    enum class Container { ContentView, Cell };

    SwipeCell(SwipeEnvironment environment, Container container);

    // What the kinds of list differ in.
    [[nodiscard]] virtual ui::ScrollView* list() const = 0;
    virtual void deleteItem(int item) = 0;
    virtual void selectItem(int item) = 0;
    virtual void deselectItem(int item) = 0;
    [[nodiscard]] virtual std::optional<SwipeActions> ownersActions(int item,
                                                                    SwipeActionsOrientation side) = 0;
    [[nodiscard]] virtual std::optional<SwipeOptions> ownersOptions(int item,
                                                                    SwipeActionsOrientation side) = 0;
    virtual void tellWillBegin(int item, SwipeActionsOrientation side) = 0;
    virtual void tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) = 0;
    [[nodiscard]] virtual std::optional<ui::Rect> ownersVisibleRect() = 0;
    /// Whether `point`, in the list's space, is on a cell of `frame`.
    [[nodiscard]] virtual bool covers(const ui::Rect& frame, ui::Point point) const = 0;

    void layoutSubviews() override;
    void didMoveToSuperview() override;

private:
    [[nodiscard]] bool canBeginEditing(SwipeController&, SwipeActionsOrientation) override { return true; }
    [[nodiscard]] std::optional<SwipeActions> editActions(SwipeController&,
                                                          SwipeActionsOrientation side) override;
    [[nodiscard]] std::optional<SwipeOptions> editActionsOptions(SwipeController&,
                                                                 SwipeActionsOrientation side) override;
    void willBeginEditing(SwipeController&, SwipeActionsOrientation side) override;
    void didEndEditing(SwipeController&, SwipeActionsOrientation side) override;
    void didDelete(SwipeController&, int indexPath) override;
    [[nodiscard]] std::optional<ui::Rect> visibleRect(SwipeController&, ui::ScrollView&) override;

    [[nodiscard]] ui::View& container() { return container_ == Container::Cell ? *this : contentView; }
    void leaveRow();
    void selectAgain();
    void leaveList();

    SwipeState state_ = SwipeState::Center;
    std::shared_ptr<SwipeActionsView> actionsView_;
    SwipeEnvironment environment_;
    Container container_;
    std::shared_ptr<SwipeController> controller_;
    std::weak_ptr<ui::PanGestureRecognizer> listPan_;
    Subscription listClosings_;
    ui::Size laidOutSize_;
    ui::Insets layoutMargins_;
    bool isPreviouslySelected_ = false;
};

} // namespace tessivo::swipe
