#include "standard/GregorianCalendar.h"

#include "icu/IcuCalendar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string_view>

namespace tessivo {
namespace {

class GregorianCalendarTest : public testing::Test {
protected:
    ~GregorianCalendarTest() override { ::unsetenv("TZ"); }

    static void moveTo(const char* zone) { ::setenv("TZ", zone, 1); }

    const GregorianCalendar calendar;
};

// Clock changes at midnight, by half an hour, and one that skipped a whole day are among them.
TEST_F(GregorianCalendarTest, AgreesWithTheCalendarOfTheProgramInEveryZone) {
    std::mt19937 random(11);
    const auto anyOf = [&](int first, int last) {
        return std::uniform_int_distribution(first, last)(random);
    };
    for (const char* zone : {"UTC", "Europe/Berlin", "America/Sao_Paulo", "Asia/Beirut", "Asia/Kolkata",
                             "Australia/Lord_Howe", "Pacific/Apia", "America/New_York"}) {
        moveTo(zone);
        const IcuCalendar expected("en_US", zone);
        for (int round = 0; round < 3000; ++round) {
            const DateComponents wall{anyOf(1975, 2020), anyOf(1, 12), anyOf(1, 31),
                                      anyOf(0, 23),      anyOf(0, 59), anyOf(0, 59)};
            const Instant moment = expected.date(wall);
            ASSERT_EQ(calendar.date(wall), moment)
                << zone << ' ' << *wall.year << '-' << *wall.month << '-' << *wall.day << ' ' << *wall.hour;
            ASSERT_EQ(calendar.components(moment), expected.components(moment)) << zone;
            if (zone == std::string_view("Pacific/Apia"))
                continue; // a step over the day that it skipped: ICU counts that day
            const auto unit = static_cast<CalendarUnit>(anyOf(0, 6));
            const int steps = anyOf(-20, 20);
            const Instant start = moment + Seconds(0.25);
            ASSERT_EQ(calendar.adding(unit, steps, start), expected.adding(unit, steps, start))
                << zone << ' ' << secondsSince1970(moment) << ' ' << static_cast<int>(unit) << ' ' << steps;
        }
    }
}

TEST_F(GregorianCalendarTest, SkippedAndRepeatedTimesHaveOneMoment) {
    moveTo("Europe/Berlin");
    EXPECT_EQ(calendar.date({2025, 3, 30, 2, 30, 0}), instantAt(1'743'296'400));
    EXPECT_EQ(calendar.date({2025, 10, 26, 2, 30, 0}), instantAt(1'761'438'600));
    moveTo("America/Sao_Paulo");
    EXPECT_EQ(calendar.components(calendar.date({2018, 11, 4, {}, {}, {}})),
              (DateComponents{2018, 11, 4, 1, 0, 0}));
}

TEST_F(GregorianCalendarTest, FollowsAChangeOfTheDevicesZone) {
    const Instant moment = instantAt(1'741'187'220);
    moveTo("Europe/Berlin");
    EXPECT_EQ(calendar.components(moment), (DateComponents{2025, 3, 5, 16, 7, 0}));
    moveTo("Asia/Tokyo");
    EXPECT_EQ(calendar.components(moment), (DateComponents{2025, 3, 6, 0, 7, 0}));
    EXPECT_EQ(calendar.date({2025, 3, 6, 0, 7, {}}), moment);
}

} // namespace
} // namespace tessivo
