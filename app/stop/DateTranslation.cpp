#include "app/stop/DateTranslation.h"

#include "Event/EventDate.h"
#include "icu/IcuDateFormatters.h"

#include <optional>

namespace tessivo {
namespace {

/// What `from` calls a moment, as `to` calls it. Empty if the text cannot be parsed, or if what would be
/// written could not be parsed again.
std::optional<std::string> translated(const std::string& text, const DateFormatter& from,
                                      const DateFormatter& to) {
    const auto moment = from.date(text);
    if (!moment)
        return std::nullopt;
    std::string written = to.string(*moment);
    // The texts are compared: two calendars may put a mere time of day on different days.
    const auto again = to.date(written);
    if (!again || from.string(*again) != from.string(*moment))
        return std::nullopt;
    return written;
}

/// The same for a text that is replaced in place; an absent or empty one stays. False if it cannot be done.
bool translate(std::optional<std::string>& text, const DateFormatter& from, const DateFormatter& to) {
    if (!text || text->empty())
        return true;
    text = translated(*text, from, to);
    return text.has_value();
}

} // namespace

std::optional<sqlite::DateTexts> DateTranslation::operator()(const sqlite::DateTexts& texts) {
    const Formatters& from = formattersOf(texts.locale.empty() ? locale_ : texts.locale);
    const Formatters& to = formattersOf(locale_);
    sqlite::DateTexts result{texts.date, texts.time, locale_};
    if (!translate(result.date, *from.date, *to.date) || !translate(result.time, *from.time, *to.time))
        return std::nullopt;
    return result;
}

bool DateTranslation::isReadable(const sqlite::DateTexts& texts) {
    const Formatters& formatters = formattersOf(locale_);
    return (!texts.date || formatters.date->date(*texts.date)) &&
           (!texts.time || texts.time->empty() || formatters.time->date(*texts.time));
}

const DateTranslation::Formatters& DateTranslation::formattersOf(const std::string& locale) {
    const auto known = formatters_.find(locale);
    if (known != formatters_.end())
        return known->second;
    // Days and times of day on a clock that nobody moves: every one of them exists.
    const IcuDateFormatters formatters(locale, "GMT");
    return formatters_.emplace(locale, Formatters{formatters.make(dateFormat), formatters.make(timeFormat)})
        .first->second;
}

} // namespace tessivo
