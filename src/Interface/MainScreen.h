#pragma once

#include "Interface/Geometry.h"
#include "Interface/Signal.h"
#include "Ports/UserPreferences.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tessivo::ui {

/// The screen that the program is laid out for, in portrait. The window sets its size.
class MainScreen {
public:
    explicit MainScreen(Size size = {390, 844}) : size_(size) {}

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] double width() const { return size_.width; }
    [[nodiscard]] double height() const { return size_.height; }
    /// Pixels in a point.
    [[nodiscard]] double scale() const { return scale_; }
    /// Tall screens get larger type and taller cards.
    [[nodiscard]] bool isLarge() const { return size_.height > 1000; }

    void resize(Size size, double scale) {
        if (size == size_ && scale == scale_)
            return;
        size_ = size;
        scale_ = scale;
        changes_.emit();
    }

    /// How much of the screen's foot the on-screen keyboard covers; 0 without one.
    [[nodiscard]] double keyboardHeight() const { return keyboardHeight_; }
    void setKeyboardHeight(double height) {
        if (std::exchange(keyboardHeight_, height) != height)
            keyboardChanges_.emit();
    }

    [[nodiscard]] const UserPreferences& preferences() const { return preferences_; }
    void setPreferences(const UserPreferences& preferences) {
        const UserPreferences former = std::exchange(preferences_, preferences);
        if (former != preferences)
            preferenceChanges_.emit();
        if (former.textScale != preferences.textScale)
            changes_.emit();
    }
    /// The height of a row that is `usual` points high where letters have their usual size.
    [[nodiscard]] double rowHeight(double usual) const {
        return usual * std::max(1.0, preferences_.textScale);
    }

    [[nodiscard]] Subscription onPreferencesChange(std::function<void()> changed) {
        return preferenceChanges_.subscribe(std::move(changed));
    }
    [[nodiscard]] Subscription onKeyboardChange(std::function<void()> changed) {
        return keyboardChanges_.subscribe(std::move(changed));
    }
    [[nodiscard]] Subscription onChange(std::function<void()> changed) {
        return changes_.subscribe(std::move(changed));
    }

private:
    Size size_;
    double scale_ = 1;
    double keyboardHeight_ = 0;
    Signal<> changes_;
    Signal<> keyboardChanges_;
    UserPreferences preferences_;
    Signal<> preferenceChanges_;
};

} // namespace tessivo::ui
