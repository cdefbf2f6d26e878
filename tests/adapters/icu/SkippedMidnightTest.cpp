#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"

#include <gmock/gmock.h>
#include <unicode/basictz.h>
#include <unicode/strenum.h>
#include <unicode/tztrans.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <set>

namespace tessivo {
namespace {

using testing::Eq;
using testing::Optional;

constexpr double daySeconds = 86400;
constexpr double year1970 = 0;
constexpr double year2038 = 2'145'916'800;

/// A day whose first wall time is not midnight, because the clocks jumped over it.
struct DayWithoutMidnight {
    std::string zone;
    std::chrono::year_month_day day;
    Instant begins; ///< the moment of the jump
};

std::chrono::year_month_day dayOf(double wallSeconds) {
    return std::chrono::sys_days(std::chrono::days(static_cast<int>(std::floor(wallSeconds / daySeconds))));
}

/// Walks along the zone's offset changes, without any calendar.
void collect(const std::string& name, std::vector<DayWithoutMidnight>& found) {
    const std::unique_ptr<icu::BasicTimeZone> zone(
        static_cast<icu::BasicTimeZone*>(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name))));
    icu::TimeZoneTransition change;
    for (double at = year1970 * 1000; zone->getNextTransition(at, false, change); at = change.getTime()) {
        const double moment = change.getTime() / 1000;
        if (moment >= year2038)
            return;
        const auto offset = [](const icu::TimeZoneRule* rule) {
            return (rule->getRawOffset() + rule->getDSTSavings()) / 1000.0;
        };
        const double wallBefore = moment + offset(change.getFrom());
        const double wallAfter = moment + offset(change.getTo());
        for (double midnight = std::ceil(wallBefore / daySeconds) * daySeconds; midnight < wallAfter;
             midnight += daySeconds)
            found.push_back({name, dayOf(midnight), instantAt(moment)});
    }
}

std::vector<DayWithoutMidnight> daysWithoutMidnight() {
    std::vector<DayWithoutMidnight> found;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> names(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_CANONICAL, nullptr, nullptr, status));
    while (const char* name = names->next(nullptr, status))
        collect(name, found);
    return found;
}

std::string englishText(const std::chrono::year_month_day& day) {
    static constexpr std::array months{"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
    char text[64];
    std::snprintf(text, sizeof text, "%02u %s %04d", static_cast<unsigned>(day.day()),
                  months[static_cast<unsigned>(day.month()) - 1], static_cast<int>(day.year()));
    return text;
}

TEST(SkippedMidnight, EverySuchDayOfEveryZoneBeginsAtTheJump) {
    using namespace std::chrono;
    const auto found = daysWithoutMidnight();
    std::set<std::string> zones;
    for (const auto& [zone, day, begins] : found) {
        zones.insert(zone);
        const std::string text = englishText(day);
        SCOPED_TRACE(zone + ", " + text);
        const IcuDateFormatters formatters("en_US", zone);
        EXPECT_THAT(formatters.make("dd MMMM yyyy")->date(text), Optional(Eq(begins)));
        EXPECT_THAT(formatters.make("dd MMMM yyyy h:mm a")->date(text + " 12:00 AM"), Optional(Eq(begins)));

        const IcuCalendar calendar("en_US", zone);
        DateComponents components;
        components.year = static_cast<int>(day.year());
        components.month = static_cast<int>(static_cast<unsigned>(day.month()));
        components.day = static_cast<int>(static_cast<unsigned>(day.day()));
        EXPECT_EQ(calendar.date(components), begins);
    }
    // Guards the walk itself: these years have many such days all over the world.
    EXPECT_GT(found.size(), 500U);
    EXPECT_GT(zones.size(), 60U);
}

TEST(SkippedMidnight, KnownDaysBeginAsTheirNewspapersSaid) {
    struct Known {
        const char* zone;
        const char* day;
        double begins;
    };
    for (const auto& [zone, day, begins] : {
             Known{"America/Sao_Paulo", "04 November 2018", 1'541'300'400}, // 01:00 at -02:00
             Known{"Asia/Beirut", "27 March 2022", 1'648'332'000},          // 01:00 at +03:00
             Known{"Pacific/Apia", "30 December 2011", 1'325'239'200},      // a day that Samoa left out
             Known{"Africa/Cairo", "28 April 2023", 1'682'632'800},         // 01:00 at +03:00
             Known{"America/Toronto", "27 March 2022", 1'648'353'600},      // an ordinary day for comparison
         }) {
        const IcuDateFormatters formatters("en_US", zone);
        EXPECT_THAT(formatters.make("dd MMMM yyyy")->date(day), Optional(Eq(instantAt(begins)))) << zone;
    }
}

} // namespace
} // namespace tessivo
