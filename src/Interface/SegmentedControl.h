#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

/// A row of titles of which one is selected.
class SegmentedControl final : public View {
public:
    using View::View;

    [[nodiscard]] const std::vector<std::string>& titles() const { return titles_; }
    void setTitles(std::vector<std::string> titles) {
        titles_ = std::move(titles);
        notify(ViewChange::Content);
    }
    [[nodiscard]] int selectedIndex() const { return selectedIndex_; }
    /// A change by the program: calls no target.
    void setSelectedIndex(int index) {
        selectedIndex_ = index;
        notify(ViewChange::Content);
    }
    [[nodiscard]] std::string selectedTitle() const {
        const auto index = static_cast<std::size_t>(selectedIndex_);
        return index < titles_.size() ? titles_[index] : std::string();
    }
    [[nodiscard]] const ColorRef& selectedTint() const { return selectedTint_; }
    void setSelectedTint(ColorRef color) {
        selectedTint_ = std::move(color);
        notify(ViewChange::Content);
    }

    /// The user selects a segment. Targets are called only where it was not the selected one.
    void select(int index) {
        if (!takesActs() || index == selectedIndex_ || index < 0 ||
            static_cast<std::size_t>(index) >= titles_.size())
            return;
        setSelectedIndex(index);
        targets_.emit();
    }

    void addValueChangedTarget(std::function<void()> target) { targets_.add(std::move(target)); }

private:
    std::vector<std::string> titles_;
    int selectedIndex_ = -1;
    ColorRef selectedTint_;
    Signal<> targets_;
};

} // namespace tessivo::ui
