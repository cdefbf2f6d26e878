// Dates against bare ICU parses of the same texts, in turns: the counter "ratio" is ours over the floor.

#include "Event/CounterText.h"
#include "Event/EventDate.h"
#include "fakes/RecordingConsole.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "json/JsonLocalizedTexts.h"

#include <benchmark/benchmark.h>
#include <unicode/smpdtfmt.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace tessivo {
namespace {

constexpr const char* locale = "de_DE";
constexpr const char* zone = "Europe/Berlin";
constexpr std::size_t rows = 10'000;

/// What a bare program would do for one row: hand the text to a strict format and take the moment.
class BareFormat {
public:
    explicit BareFormat(std::string_view pattern) {
        UErrorCode status = U_ZERO_ERROR;
        format_.emplace(icu::UnicodeString::fromUTF8(std::string(pattern)), icu::Locale(locale), status);
        format_->adoptTimeZone(icu::TimeZone::createTimeZone(zone));
        format_->setLenient(false);
    }

    [[nodiscard]] double parse(const std::string& text) const {
        UErrorCode status = U_ZERO_ERROR;
        const UDate moment = format_->parse(icu::UnicodeString::fromUTF8(text), status);
        if (U_FAILURE(status))
            std::abort();
        return moment;
    }

private:
    std::optional<icu::SimpleDateFormat> format_;
};

struct Texts {
    std::vector<std::string> dates;
    std::vector<std::string> times;
};

/// One event in three lasts all day; days and hours are spread over some forty years.
Texts textsOfRows() {
    const IcuDateFormatters formatters(locale, zone);
    const auto date = formatters.make(dateFormat);
    const auto time = formatters.make(timeFormat);
    Texts texts;
    for (std::size_t row = 0; row < rows; ++row) {
        const Instant moment = instantAt(1'000'000'000 + static_cast<double>(row) * 131'071);
        texts.dates.push_back(date->string(moment));
        texts.times.push_back(row % 3 == 0 ? "" : time->string(moment));
    }
    return texts;
}

using Stopwatch = std::chrono::steady_clock;

double secondsSince(Stopwatch::time_point start) {
    return std::chrono::duration<double>(Stopwatch::now() - start).count();
}

/// Runs both in turns and reports their times per row and their ratio.
template <class Ours, class Floor>
void compare(benchmark::State& state, Ours ours, Floor floor) {
    double oursSeconds = 0;
    double floorSeconds = 0;
    for (auto _ : state) {
        const auto first = Stopwatch::now();
        ours();
        const auto second = Stopwatch::now();
        floor();
        floorSeconds += secondsSince(second);
        const double taken = std::chrono::duration<double>(second - first).count();
        oursSeconds += taken;
        state.SetIterationTime(taken);
    }
    const auto perRow = [&](double seconds) {
        return seconds / static_cast<double>(state.iterations()) / rows * 1e9;
    };
    state.counters["ours_ns"] = perRow(oursSeconds);
    state.counters["floor_ns"] = perRow(floorSeconds);
    state.counters["ratio"] = oursSeconds / floorSeconds;
}

void parseDates(benchmark::State& state) {
    const Texts texts = textsOfRows();
    const auto formatter = IcuDateFormatters(locale, zone).make(dateFormat);
    const BareFormat bare(dateFormat);
    compare(
        state,
        [&] {
            for (const auto& text : texts.dates)
                benchmark::DoNotOptimize(formatter->date(text));
        },
        [&] {
            for (const auto& text : texts.dates)
                benchmark::DoNotOptimize(bare.parse(text));
        });
}
BENCHMARK(parseDates)->UseManualTime()->Unit(benchmark::kMillisecond);

/// What a list does with its rows: the moment of each event, its side of now and its counter. The floor is
/// one bare parse a row.
void countAllRows(benchmark::State& state) {
    const Texts texts = textsOfRows();
    const IcuDateFormatters formatters(locale, zone);
    const BareFormat bareDate(dateFormat);
    const BareFormat bareFull(fullFormat);
    std::vector<std::string> joined;
    for (std::size_t row = 0; row < rows; ++row)
        joined.push_back(texts.times[row].empty() ? texts.dates[row]
                                                  : texts.dates[row] + ' ' + texts.times[row]);
    const Instant now = instantAt(1'700'000'000);
    fakes::RecordingConsole console;
    const JsonLocalizedTexts words;
    compare(
        state,
        [&] {
            const auto full = formatters.make(fullFormat);
            const auto date = formatters.make(dateFormat);
            for (std::size_t row = 0; row < rows; ++row) {
                const auto moment = eventDateOf(texts.dates[row], texts.times[row], *full, *date);
                benchmark::DoNotOptimize(
                    counterText(*moment, now, static_cast<int>(row % 5), unitWords, words, console));
            }
        },
        [&] {
            for (std::size_t row = 0; row < rows; ++row)
                benchmark::DoNotOptimize((texts.times[row].empty() ? bareDate : bareFull).parse(joined[row]));
        });
}
BENCHMARK(countAllRows)->UseManualTime()->Unit(benchmark::kMillisecond);

void counterAlone(benchmark::State& state) {
    fakes::RecordingConsole console;
    const JsonLocalizedTexts words;
    double event = 1'000'000'000;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            counterText(instantAt(event += 977), instantAt(1'700'000'000), 1, unitWords, words, console));
}
BENCHMARK(counterAlone);

void makeFormatter(benchmark::State& state) {
    const IcuDateFormatters formatters;
    for (auto _ : state)
        benchmark::DoNotOptimize(formatters.make(fullFormat));
}
BENCHMARK(makeFormatter);

void monthStepFollowingTheDevice(benchmark::State& state) {
    const IcuCalendar calendar;
    Instant moment = instantAt(1'700'000'000);
    for (auto _ : state)
        benchmark::DoNotOptimize(calendar.adding(CalendarUnit::Month, 1, moment));
}
BENCHMARK(monthStepFollowingTheDevice);

void countTitleCharacters(benchmark::State& state) {
    const IcuTextCounting counting;
    for (auto _ : state)
        benchmark::DoNotOptimize(counting.characters("Grandma's birthday 🎂"));
}
BENCHMARK(countTitleCharacters);

} // namespace
} // namespace tessivo
