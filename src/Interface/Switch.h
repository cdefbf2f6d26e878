#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

/// On or off. Its first sublayer, where it has one, fills it.
class Switch final : public View {
public:
    using View::View;

    [[nodiscard]] bool isOn() const { return on_; }
    /// The program's own change: calls no target.
    void setOn(bool on) {
        on_ = on;
        notify(ViewChange::Content);
    }

    /// The user's change: turns it over and calls the value-changed targets.
    void toggle() {
        setOn(!on_);
        for (std::size_t index = 0; index < targets_.size(); ++index) {
            const auto target = targets_[index];
            target();
        }
    }

    void addValueChangedTarget(std::function<void()> target) { targets_.push_back(std::move(target)); }

private:
    bool on_ = false;
    std::vector<std::function<void()>> targets_;
};

} // namespace tessivo::ui
