#pragma once

#include "Ports/SavedSettings.h"
#include "sqlite/Database.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <variant>

namespace tessivo {
class Console;
}

namespace tessivo::sqlite {

/// The saved settings in a database file of their own. All are read when the object is made; where the file
/// cannot be used the console says so once, the file stays as it is, and the settings last for this run.
class SqliteSavedSettings final : public SavedSettings {
public:
    SqliteSavedSettings(const std::filesystem::path& file, Console& console);

    bool contains(std::string_view key) const override { return values_.contains(key); }
    std::optional<long> integer(std::string_view key) const override;
    std::optional<bool> boolean(std::string_view key) const override;
    std::optional<std::string> text(std::string_view key) const override;

    void setInteger(std::string_view key, long value) override;
    void setBoolean(std::string_view key, bool value) override;
    void setText(std::string_view key, std::string_view value) override;

    void remove(std::string_view key) override;

private:
    using Value = std::variant<long, bool, std::string>;

    template <class Kind>
    [[nodiscard]] std::optional<Kind> value(std::string_view key) const;
    void set(std::string_view key, Value value);
    [[nodiscard]] Outcome open(const std::filesystem::path& file);
    [[nodiscard]] Outcome read();
    [[nodiscard]] Outcome write(std::string_view key, const Value& value);
    [[nodiscard]] Outcome erase(std::string_view key);

    Console& console_;
    std::optional<Database> database_; ///< none where the file cannot be used
    std::map<std::string, Value, std::less<>> values_;
};

} // namespace tessivo::sqlite
