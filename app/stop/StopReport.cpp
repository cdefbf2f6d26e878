#include "app/stop/StopReport.h"

#include "Support/FilledText.h"
#include "app/stop/DateTranslation.h"
#include "icu/DeviceLocale.h"
#include "sqlite/StoredDates.h"

#include <algorithm>
#include <vector>

namespace tessivo {
namespace {

std::filesystem::path eventsFile(const std::filesystem::path& dataFolder) {
    return dataFolder / "events.sqlite";
}

} // namespace

StopReport makeStopReport(const std::filesystem::path& dataFolder, const std::string& locale,
                          const std::string& language, const LocalizedTexts& texts) {
    StopReport report{texts.localizedString("stop.advice.other"), eventsFile(dataFolder).string(), {}, false};
    auto store = sqlite::StoredDates::open(eventsFile(dataFolder));
    const auto dates = store ? store.value().all() : store.error();
    if (!dates) {
        report.advice = texts.localizedString("stop.advice.store");
        return report;
    }
    DateTranslation translation(locale);
    const auto unreadable = std::ranges::find_if(
        dates.value(), [&](const auto& event) { return !translation.isReadable(event); });
    if (unreadable == dates.value().end())
        return report;
    report.canRewriteDates =
        std::ranges::all_of(dates.value(), [&](const auto& event) { return translation(event).has_value(); });
    if (unreadable->locale.empty() || unreadable->locale == locale) {
        report.advice = texts.localizedString("stop.advice.unknownDates");
        return report;
    }
    report.datesLocale = unreadable->locale;
    report.advice =
        filledText(texts.localizedString("stop.advice.dates"),
                   localeDisplayName(report.datesLocale, language), localeDisplayName(locale, language));
    return report;
}

std::optional<std::string> rewriteDates(const std::filesystem::path& dataFolder, const std::string& locale) {
    auto store = sqlite::StoredDates::open(eventsFile(dataFolder));
    if (!store)
        return store.error().description;
    DateTranslation translation(locale);
    const auto error = store.value().rewrite([&](const auto& event) { return translation(event); });
    return error ? std::optional(error->description) : std::nullopt;
}

} // namespace tessivo
