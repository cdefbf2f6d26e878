#include "Event/CounterText.h"
#include "Event/EventDate.h"
#include "fakes/RecordingConsole.h"
#include "icu/IcuDateFormatters.h"
#include "json/JsonLocalizedTexts.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;
using testing::Optional;

struct Row {
    std::int64_t eventMilliseconds;
    std::int64_t nowMilliseconds;
    int unit;
    const char* number;
};

constexpr Row counterTable[] = {
#include "Event/data/CounterTable.inc"
};

Instant atMilliseconds(std::int64_t milliseconds) {
    return instantAt(static_cast<double>(milliseconds) / 1000);
}

class CounterTextTest : public testing::Test {
protected:
    fakes::RecordingConsole console;
    const JsonLocalizedTexts texts;
};

TEST_F(CounterTextTest, CountsAsWholeNumberArithmeticDoes) {
    for (const auto& [event, now, unit, number] : counterTable) {
        const auto counter =
            counterText(atMilliseconds(event), atMilliseconds(now), unit, unitWords, texts, console);
        ASSERT_TRUE(counter);
        EXPECT_EQ(counter->number, number) << event << " from " << now << " in " << unitWords[unit];
    }
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(CounterTextTest, TheUnitLineIsTheWordOfTheUnitWhateverTheCount) {
    const auto lines = [this](int unit, const UnitWords& words) {
        return counterText(instantAt(0), instantAt(3600), unit, words, texts, console)->unit;
    };
    EXPECT_EQ(lines(0, unitWords), "Hours");
    EXPECT_EQ(lines(2, unitWords), "Weeks");
    EXPECT_EQ(lines(4, unitWords), "Years");
    EXPECT_EQ(lines(0, editPreviewUnitWords), "Hour");
    EXPECT_EQ(lines(1, editPreviewUnitWords), "Days");
    EXPECT_EQ(lines(4, editPreviewUnitWords), "Year");
}

TEST_F(CounterTextTest, SpeaksTheLanguageOfTheTexts) {
    const auto german =
        JsonLocalizedTexts::fromJson(R"({"In ": "Noch ", "Since ": "Schon ", "Hours": "Stunden"})").value();
    const auto in = [&](double event) {
        return counterText(instantAt(event), instantAt(0), 0, unitWords, german, console);
    };
    EXPECT_THAT(in(7200), Optional(CounterText{"Noch 2", "Stunden"}));
    EXPECT_THAT(in(-7200), Optional(CounterText{"Schon 2", "Stunden"}));
}

TEST_F(CounterTextTest, AUnitThatIsNonePrintsNulEvenWhereTheCountWouldNotFit) {
    const Instant never = instantAt(std::numeric_limits<double>::infinity());
    for (const int unit : {5, -1, 9999, -32768}) {
        EXPECT_EQ(counterText(instantAt(0), instantAt(0), unit, unitWords, texts, console), std::nullopt);
        EXPECT_EQ(counterText(never, instantAt(0), unit, unitWords, texts, console), std::nullopt);
        EXPECT_THAT(console.take(), ElementsAre("nul", "nul"));
    }
}

TEST_F(CounterTextTest, ACountBeyondSixtyFourBitsStopsTheProgram) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double event : {infinity, -infinity, std::nan(""), 1e300, -1e300})
        EXPECT_THROW((void)counterText(instantAt(event), instantAt(0), 4, unitWords, texts, console),
                     fakes::ProgramStopped)
            << event;

    // 2^63 hours either way are one too many; the double before them still counts.
    const double tooMany = std::ldexp(3600.0, 63);
    const double most = std::nextafter(tooMany, 0);
    for (const double sign : {1.0, -1.0})
        EXPECT_THROW((void)counterText(instantAt(sign * tooMany), instantAt(0), 0, unitWords, texts, console),
                     fakes::ProgramStopped);
    EXPECT_EQ(counterText(instantAt(most), instantAt(0), 0, unitWords, texts, console)->number,
              "In 9223372036854774784");
    EXPECT_EQ(counterText(instantAt(-most), instantAt(0), 0, unitWords, texts, console)->number,
              "Since 9223372036854774784");
}

TEST(EventDate, ATimeMakesAMomentAndNoTimeMakesTheStartOfTheDay) {
    const IcuDateFormatters formatters("en_US", "Europe/Berlin");
    const auto full = formatters.make(fullFormat);
    const auto date = formatters.make(dateFormat);
    const auto moment = [&](const std::optional<std::string>& day, const std::optional<std::string>& time) {
        return eventDateOf(day, time, *full, *date);
    };
    EXPECT_THAT(moment("05 March 2025", "3:07 PM"), Optional(Eq(instantAt(1'741'183'620))));
    EXPECT_THAT(moment("05 March 2025", std::nullopt), Optional(Eq(instantAt(1'741'129'200))));
    EXPECT_THAT(moment("05 March 2025", ""), Optional(Eq(instantAt(1'741'129'200))));
    EXPECT_EQ(moment(std::nullopt, "3:07 PM"), std::nullopt);
    EXPECT_EQ(moment("05 März 2025", std::nullopt), std::nullopt);
    EXPECT_EQ(moment("05 March 2025", "15:07"), std::nullopt);
    EXPECT_EQ(moment("05 March 2025", " "), std::nullopt);
}

TEST(EventDate, AnEventIsPastOnlyStrictlyBeforeNow) {
    EXPECT_TRUE(isPast(instantAt(99.75), instantAt(100)));
    EXPECT_FALSE(isPast(instantAt(100), instantAt(100)));
    EXPECT_FALSE(isPast(instantAt(100.25), instantAt(100)));
}

} // namespace
} // namespace tessivo
