#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace tessivo::ui {

class View;

/// The controls of one screen or cell by the names of their fields, so that a window can find what it draws.
/// Controls enter themselves as they are made; they and the registry belong to the same owner.
class ControlRegistry {
public:
    /// Throws `std::logic_error` for a name that is taken: a window could draw only one of the two.
    void enter(const std::string& name, View& control) {
        if (!controls_.try_emplace(name, &control).second)
            throw std::logic_error("There are two controls named \"" + name + "\".");
    }

    /// The control of that name; null where there is none.
    [[nodiscard]] View* find(std::string_view name) const {
        const auto found = controls_.find(name);
        return found == controls_.end() ? nullptr : found->second;
    }

    [[nodiscard]] const std::map<std::string, View*, std::less<>>& all() const { return controls_; }

    /// Whether the user's acts are for these controls now, where the owner has said how to tell.
    [[nodiscard]] bool takesActs() const { return !takesActs_ || takesActs_(); }
    void setTakesActs(std::function<bool()> takesActs) { takesActs_ = std::move(takesActs); }

private:
    std::function<bool()> takesActs_;
    std::map<std::string, View*, std::less<>> controls_;
};

} // namespace tessivo::ui
