#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/View.h"

#include <string>
#include <vector>

namespace tessivo::ui {

/// One item of a collection on the screen. The collection reuses it for other items when it has left the
/// screen. Its content stands in `contentView`, which fills it.
class CollectionViewCell : public View {
public:
    CollectionViewCell() { addSubview(contentView); }

    ControlRegistry controls;
    View contentView{controls, "contentView"};

    /// Before the cell is handed out again. Overrides call the base first.
    virtual void prepareForReuse() {
        setSelected(false);
        setHighlighted(false);
        setLifted(false);
    }
    /// Before the cell leaves the screen for the pool, or for good.
    virtual void willLeaveWindow() {}

    [[nodiscard]] bool isSelected() const { return selected_; }
    virtual void setSelected(bool selected) {
        selected_ = selected;
        notify(ViewChange::Content);
    }
    [[nodiscard]] bool isHighlighted() const { return highlighted_; }
    virtual void setHighlighted(bool highlighted) {
        highlighted_ = highlighted;
        notify(ViewChange::Content);
    }

    /// The cell is held up while its menu is open.
    [[nodiscard]] bool isLifted() const { return lifted_; }
    void setLifted(bool lifted) {
        lifted_ = lifted;
        notify(ViewChange::Content);
    }

    /// A finger has come onto the cell: what moves stops where it is drawn. Says whether anything did.
    virtual bool holdStill() { return false; }
    /// The finger has gone: what has been stopped, and not been put elsewhere since, goes on.
    virtual void moveOn() {}

    /// What assistive technology may do with the cell besides pressing it, by name.
    [[nodiscard]] virtual std::vector<std::string> accessibilityActionNames() { return {}; }
    /// Does the first of that name; false where there is none.
    virtual bool performAccessibilityAction(const std::string& /*name*/) { return false; }

    /// The place that the collection's layout gives the cell.
    virtual void place(const Rect& frame) { setFrame(frame); }

protected:
    void layoutSubviews() override { contentView.setFrame({0, 0, bounds().width, bounds().height}); }

private:
    bool selected_ = false;
    bool highlighted_ = false;
    bool lifted_ = false;
};

} // namespace tessivo::ui
