#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

/// On or off. Its first sublayer, where it has one, fills it.
class Switch final : public View {
public:
    using View::View;

    [[nodiscard]] bool isOn() const { return on_; }
    /// A change by the program: calls no target.
    void setOn(bool on) {
        on_ = on;
        notify(ViewChange::Content);
    }

    /// The user's change: turns it over and calls the value-changed targets.
    void toggle() {
        if (!takesActs())
            return;
        setOn(!on_);
        targets_.emit();
    }

    void addValueChangedTarget(std::function<void()> target) { targets_.add(std::move(target)); }

private:
    bool on_ = false;
    Signal<> targets_;
};

} // namespace tessivo::ui
