#pragma once

#include "Ports/DateFormatter.h"
#include "sqlite/StoredDates.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace tessivo {

/// Writes the date texts of one locale as another one writes them, for the same day and time of day.
class DateTranslation final {
public:
    /// `locale`, an ICU name, is the one to translate into.
    explicit DateTranslation(std::string locale) : locale_(std::move(locale)) {}

    /// Empty where the texts cannot be parsed in the locale in which they were written, or, where that was
    /// not recorded, in the one to translate into.
    [[nodiscard]] std::optional<sqlite::DateTexts> operator()(const sqlite::DateTexts& texts);

    /// Whether a program that runs in the locale to translate into can parse the texts as they are.
    [[nodiscard]] bool isReadable(const sqlite::DateTexts& texts);

private:
    struct Formatters {
        std::unique_ptr<DateFormatter> date;
        std::unique_ptr<DateFormatter> time;
    };

    [[nodiscard]] const Formatters& formattersOf(const std::string& locale);

    std::string locale_;
    std::map<std::string, Formatters> formatters_; ///< by locale
};

} // namespace tessivo
