#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// Small saved values by key, which tell absent from present and outlive the program. Main thread only. A
/// write is on disk when it returns; where it cannot be written the value still holds for this run, and the
/// console says so.
class SavedSettings {
public:
    virtual ~SavedSettings() = default;

    /// Whether the key has a value, of whatever kind.
    [[nodiscard]] virtual bool contains(std::string_view key) const = 0;

    /// The value of the key, empty where there is none or where it is of another kind.
    [[nodiscard]] virtual std::optional<long> integer(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<bool> boolean(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) const = 0;

    virtual void setInteger(std::string_view key, long value) = 0;
    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setText(std::string_view key, std::string_view value) = 0;

    /// Makes the key absent.
    virtual void remove(std::string_view key) = 0;
};

} // namespace tessivo
