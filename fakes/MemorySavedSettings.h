#pragma once

#include "Ports/SavedSettings.h"

#include <functional>
#include <map>
#include <variant>

namespace tessivo::fakes {

/// Saved settings that last as long as the object.
class MemorySavedSettings final : public SavedSettings {
public:
    bool contains(std::string_view key) const override { return values_.contains(key); }
    std::optional<long> integer(std::string_view key) const override { return value<long>(key); }
    std::optional<bool> boolean(std::string_view key) const override { return value<bool>(key); }
    std::optional<std::string> text(std::string_view key) const override { return value<std::string>(key); }

    void setInteger(std::string_view key, long value) override { set(key, value); }
    void setBoolean(std::string_view key, bool value) override { set(key, value); }
    void setText(std::string_view key, std::string_view value) override { set(key, std::string(value)); }

    void remove(std::string_view key) override {
        if (const auto found = values_.find(key); found != values_.end())
            values_.erase(found);
    }

private:
    using Value = std::variant<long, bool, std::string>;

    template <class Kind>
    std::optional<Kind> value(std::string_view key) const {
        const auto found = values_.find(key);
        if (found == values_.end() || !std::holds_alternative<Kind>(found->second))
            return std::nullopt;
        return std::get<Kind>(found->second);
    }

    void set(std::string_view key, Value value) {
        values_.insert_or_assign(std::string(key), std::move(value));
    }

    std::map<std::string, Value, std::less<>> values_;
};

} // namespace tessivo::fakes
