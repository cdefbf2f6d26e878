#pragma once

#include "Interface/Animation.h"
#include "Interface/View.h"
#include "SwipeCells/SwipeActionButton.h"
#include "SwipeCells/SwipeActionButtonWrapperView.h"
#include "SwipeCells/SwipeEnvironment.h"
#include "SwipeCells/SwipeFeedback.h"
#include "SwipeCells/SwipeTransitionLayout.h"

#include <deque>

namespace tessivo::ui {
class ScrollView;
}

namespace tessivo::swipe {

class SwipeActionsView;

/// Notified of a tap on a button. Held weakly by the row.
class SwipeActionsViewDelegate {
public:
    virtual ~SwipeActionsViewDelegate() = default;

    virtual void didSelect(SwipeActionsView& view, const std::shared_ptr<SwipeAction>& action) = 0;
};

/// The ground of a button that has an effect.
class VisualEffectView final : public ui::View {
public:
    explicit VisualEffectView(VisualEffect effect) {
        const double shade = effect == VisualEffect::Light ? 1 : 0;
        setBackgroundColor(ui::ColorRef::of({shade, shade, shade, 0.6}));
    }

protected:
    void layoutSubviews() override {
        for (ui::View* subview : subviews())
            subview->setFrame({0, 0, bounds().width, bounds().height});
    }
};

/// The row of buttons that a swipe uncovers. It hangs on the edge of the moving container, twice as wide as
/// the cell, and is fed one number, `visibleWidth`, after each move. Main thread.
class SwipeActionsView final : public ui::View, public std::enable_shared_from_this<SwipeActionsView> {
public:
    /// `safeAreaView` may be null; it goes no sooner than the cell leaves it. `actions` are in the owner's
    /// order.
    SwipeActionsView(const SwipeEnvironment& environment, ui::Insets contentInsets, ui::Size maximumSize,
                     const ui::ScrollView* safeAreaView, SwipeOptions options,
                     SwipeActionsOrientation orientation, SwipeActions actions);

    std::weak_ptr<SwipeActionsViewDelegate> delegate;

    [[nodiscard]] SwipeActionsOrientation orientation() const { return orientation_; }
    [[nodiscard]] const SwipeOptions& options() const { return options_; }
    /// The last one lies nearest the far edge and is the one that expands.
    [[nodiscard]] const SwipeActions& actions() const { return actions_; }
    /// In the order of `actions`.
    [[nodiscard]] std::span<ui::Button* const> buttons() const { return buttons_; }
    [[nodiscard]] const SwipeActionButton& button(std::size_t index) const { return buttonStore_[index]; }
    [[nodiscard]] const ActionsViewLayoutContext& layoutContext() const { return layoutContext_; }
    /// The width that every button finally has.
    [[nodiscard]] double minimumButtonWidth() const { return minimumButtonWidth_; }
    /// How far the cell opens: all buttons and the list's safe margin.
    [[nodiscard]] double naturalRowWidth() const;
    /// The room that the buttons share: what is seen, less what an elastic row holds back.
    [[nodiscard]] ui::Size contentSize() const;
    /// The action that fires by expansion; null where the row does not expand.
    [[nodiscard]] std::shared_ptr<SwipeAction> expansionCarrier() const;

    [[nodiscard]] double visibleWidth() const { return visibleWidth_; }
    /// Takes the safe margin off, never below 0, and places the buttons at once.
    void setVisibleWidth(double width);
    [[nodiscard]] bool expanded() const { return expanded_; }
    /// Lets the last button run over the whole row, or back, as the expansion delegate times it; with
    /// `feedback` the user feels it. Nothing where it is so already.
    void setExpanded(bool expanded, bool feedback);

    /// What stays visible of the row's cell while it is taken away, in the space of the view that the row
    /// hangs on. The caller's own.
    [[nodiscard]] std::unique_ptr<ui::View> makeDeletionMask() const;

protected:
    void layoutSubviews() override;

private:
    void buildButtons(ui::Size maximumSize);
    void addWrapper(std::size_t index);
    void actionTapped(std::size_t index);
    [[nodiscard]] double safeMargin() const;
    [[nodiscard]] ActionsViewLayoutContext makeContext() const;
    [[nodiscard]] const SwipeExpanding* expansionDelegate() const;
    void reportTransitions();
    void layoutWrapper(ui::View& subview, const SwipeActionButton& button);

    SwipeEnvironment environment_;
    ui::Insets contentInsets_;
    const ui::ScrollView* safeAreaInsetView_;
    SwipeOptions options_;
    SwipeActionsOrientation orientation_;
    SwipeActions actions_;
    std::unique_ptr<const SwipeTransitionLayout> transitionLayout_;
    ActionsViewLayoutContext layoutContext_;
    SwipeFeedback feedbackGenerator_;
    std::shared_ptr<ui::PropertyAnimator> expansionAnimator_;
    std::deque<SwipeActionButton> buttonStore_;
    std::vector<ui::Button*> buttons_;
    std::vector<ui::Button*> reversedButtons_;
    std::vector<std::unique_ptr<SwipeActionButtonWrapperView>> wrappers_;
    std::vector<std::unique_ptr<VisualEffectView>> effectViews_;
    std::vector<double> oldWidths_; ///< of the layout before; kept, so that a step of a pan takes no memory
    std::vector<double> newWidths_;
    double minimumButtonWidth_ = 0;
    double visibleWidth_ = 0;
    bool expanded_ = false;
    bool hasTransitions_ = false; ///< some action hears of its button's visible share
};

} // namespace tessivo::swipe
