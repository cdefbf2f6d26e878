#pragma once

#include "Ports/Error.h"
#include "sqlite/Database.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessivo::sqlite {

/// The texts of one event's moment, and the locale in which they were written, as ICU names it. Empty where
/// it was not recorded.
struct DateTexts {
    std::optional<std::string> date;
    std::optional<std::string> time;
    std::string locale;
};

/// The dates of all events in a closed store, for when the program cannot read them.
class StoredDates final {
public:
    /// Opens the store; see `Database::open` for what is refused.
    [[nodiscard]] static Result<StoredDates> open(const std::filesystem::path& file);

    [[nodiscard]] Result<std::vector<DateTexts>> all();

    /// Replaces the texts of each event by what `rewritten` makes of them, all or none. Before that a copy of
    /// the file is put beside it, under the first free name of the form "<file>.before-1". An event for which
    /// `rewritten` gives nothing fails the whole.
    [[nodiscard]] Outcome
    rewrite(const std::function<std::optional<DateTexts>(const DateTexts& texts)>& rewritten);

private:
    StoredDates(std::filesystem::path file, Database database)
        : file_(std::move(file)), database_(std::move(database)) {}

    [[nodiscard]] Outcome keepCopy();

    std::filesystem::path file_;
    Database database_;
};

} // namespace tessivo::sqlite
