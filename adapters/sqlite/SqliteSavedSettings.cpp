#include "sqlite/SqliteSavedSettings.h"

#include "Ports/Console.h"

#include <string>
#include <utility>

namespace tessivo::sqlite {
namespace {

// A boolean and an integer are different kinds of value, which SQLite's own types do not tell apart.
const Schema settingsSchema{.applicationId = 0x54535353, .version = 1, .sql = R"(
CREATE TABLE settings(
    key TEXT PRIMARY KEY NOT NULL,
    kind TEXT NOT NULL CHECK(kind IN ('integer', 'boolean', 'text')),
    value ANY NOT NULL
) STRICT, WITHOUT ROWID;
)"};

} // namespace

SqliteSavedSettings::SqliteSavedSettings(const std::filesystem::path& file, Console& console)
    : console_(console) {
    if (const auto error = open(file)) {
        database_.reset();
        console_.print("The saved settings cannot be used: " + error->description);
    }
}

std::optional<long> SqliteSavedSettings::integer(std::string_view key) const {
    return value<long>(key);
}

std::optional<bool> SqliteSavedSettings::boolean(std::string_view key) const {
    return value<bool>(key);
}

std::optional<std::string> SqliteSavedSettings::text(std::string_view key) const {
    return value<std::string>(key);
}

void SqliteSavedSettings::setInteger(std::string_view key, long value) {
    set(key, value);
}

void SqliteSavedSettings::setBoolean(std::string_view key, bool value) {
    set(key, value);
}

void SqliteSavedSettings::setText(std::string_view key, std::string_view value) {
    set(key, std::string(value));
}

void SqliteSavedSettings::remove(std::string_view key) {
    const auto found = values_.find(key);
    if (found == values_.end())
        return;
    values_.erase(found);
    if (!database_)
        return;
    if (const auto error = erase(key))
        console_.print("The setting \"" + std::string(key) + "\" cannot be removed: " + error->description);
}

template <class Kind>
std::optional<Kind> SqliteSavedSettings::value(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end() || !std::holds_alternative<Kind>(found->second))
        return std::nullopt;
    return std::get<Kind>(found->second);
}

void SqliteSavedSettings::set(std::string_view key, Value value) {
    const auto& kept = values_.insert_or_assign(std::string(key), std::move(value)).first->second;
    if (!database_)
        return;
    if (const auto error = write(key, kept))
        console_.print("The setting \"" + std::string(key) + "\" cannot be saved: " + error->description);
}

Outcome SqliteSavedSettings::open(const std::filesystem::path& file) {
    auto opened = Database::open(file, settingsSchema);
    if (!opened)
        return opened.error();
    database_ = std::move(opened.value());
    return read();
}

Outcome SqliteSavedSettings::read() {
    auto prepared = database_->prepare("SELECT key, kind, value FROM settings");
    if (!prepared)
        return prepared.error();
    Statement& row = prepared.value();
    Step step = row.step();
    for (; step == Step::Row; step = row.step()) {
        const auto kind = row.text(1);
        Value& value = values_[std::string(row.text(0))];
        if (kind == "integer")
            value = static_cast<long>(row.integer(2));
        else if (kind == "boolean")
            value = row.integer(2) != 0;
        else
            value = std::string(row.text(2));
    }
    return step == Step::Failed ? Outcome(row.error()) : std::nullopt;
}

Outcome SqliteSavedSettings::write(std::string_view key, const Value& value) {
    auto prepared = database_->prepare("INSERT INTO settings(key, kind, value) VALUES(?1, ?2, ?3) "
                                       "ON CONFLICT(key) DO UPDATE SET kind = ?2, value = ?3 "
                                       "WHERE kind <> ?2 OR value <> ?3"); // else the file stays as it is
    if (!prepared)
        return prepared.error();
    Statement& writing = prepared.value();
    writing.bindText(1, key);
    if (const auto* number = std::get_if<long>(&value)) {
        writing.bindText(2, "integer");
        writing.bindInteger(3, *number);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        writing.bindText(2, "boolean");
        writing.bindInteger(3, *flag ? 1 : 0);
    } else {
        writing.bindText(2, "text");
        writing.bindText(3, std::get<std::string>(value));
    }
    return writing.run();
}

Outcome SqliteSavedSettings::erase(std::string_view key) {
    auto prepared = database_->prepare("DELETE FROM settings WHERE key = ?1");
    if (!prepared)
        return prepared.error();
    prepared.value().bindText(1, key);
    return prepared.value().run();
}

} // namespace tessivo::sqlite
