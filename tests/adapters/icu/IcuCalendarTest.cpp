#include "icu/IcuCalendar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

namespace tessivo {
namespace {

DateComponents at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return {year, month, day, hour, minute, second};
}

struct Step {
    DateComponents from;
    CalendarUnit unit;
    int value;
    DateComponents to;
};

void expectSteps(const IcuCalendar& calendar, std::initializer_list<Step> steps) {
    int row = 0;
    for (const auto& [from, unit, value, to] : steps) {
        const Instant moved = calendar.adding(unit, value, calendar.date(from));
        EXPECT_EQ(calendar.components(moved), to) << "row " << row;
        ++row;
    }
}

TEST(IcuCalendar, StepsKeepTheTimeOfDayAndStayInsideTheMonth) {
    using enum CalendarUnit;
    expectSteps(IcuCalendar("en_US", "Europe/Berlin"),
                {{at(2025, 1, 31, 9, 30), Month, 1, at(2025, 2, 28, 9, 30)},
                 {at(2024, 1, 31, 9, 30), Month, 1, at(2024, 2, 29, 9, 30)},
                 {at(2025, 2, 28, 9, 30), Month, 1, at(2025, 3, 28, 9, 30)},
                 {at(2025, 1, 31), Month, 13, at(2026, 2, 28)},
                 {at(2025, 5, 31), Month, -1, at(2025, 4, 30)},
                 {at(2024, 2, 29, 23, 59, 59), Year, 1, at(2025, 2, 28, 23, 59, 59)},
                 {at(2024, 2, 29), Year, 4, at(2028, 2, 29)},
                 {at(2025, 3, 29, 8), Day, 1, at(2025, 3, 30, 8)}, // a day of 23 hours
                 {at(2025, 10, 25, 8), WeekOfYear, 1, at(2025, 11, 1, 8)},
                 {at(2025, 12, 25), WeekOfYear, 2, at(2026, 1, 8)},
                 {at(2025, 3, 30, 1, 30), Hour, 1, at(2025, 3, 30, 3, 30)},
                 {at(2025, 3, 29, 8), Hour, 24, at(2025, 3, 30, 9)},
                 {at(2025, 1, 1), Minute, -5, at(2024, 12, 31, 23, 55)},
                 {at(2024, 12, 31, 23, 59, 30), Second, 45, at(2025, 1, 1, 0, 0, 15)},
                 {at(2025, 1, 31), Day, 0, at(2025, 1, 31)}});
}

TEST(IcuCalendar, StepsIntoASkippedHourComeOutBehindIt) {
    using enum CalendarUnit;
    expectSteps(IcuCalendar("en_US", "Europe/Berlin"),
                {{at(2025, 3, 29, 2, 30), Day, 1, at(2025, 3, 30, 3)},
                 {at(2025, 2, 28, 2, 30), Month, 1, at(2025, 3, 28, 2, 30)},
                 {at(2025, 2, 28, 2, 30), Day, 30, at(2025, 3, 30, 3)},
                 {at(2024, 3, 30, 2, 30), Year, 1, at(2025, 3, 30, 3)}});
}

TEST(IcuCalendar, StepsFollowTheLocalesOwnMonths) {
    using enum CalendarUnit;
    // Persian: six months of 31 days, then 30; Esfand has 29 but in leap years.
    expectSteps(IcuCalendar("fa_IR", "Asia/Tehran"), {{at(1403, 6, 31), Month, 1, at(1403, 7, 30)},
                                                      {at(1403, 12, 30), Year, 1, at(1404, 12, 29)}});
    expectSteps(IcuCalendar("th_TH", "Asia/Bangkok"), {{at(2568, 1, 31), Month, 1, at(2568, 2, 28)}});
    EXPECT_EQ(IcuCalendar("th_TH", "Asia/Bangkok").date(at(2568, 3, 5)),
              IcuCalendar("en_US", "Asia/Bangkok").date(at(2025, 3, 5)));
}

TEST(IcuCalendar, AStepKeepsTheFractionOfASecond) {
    const IcuCalendar calendar("en_US", "UTC");
    EXPECT_EQ(calendar.adding(CalendarUnit::Month, 1, instantAt(1'700'000'000.0625)),
              instantAt(1'702'592'000.0625));
    EXPECT_EQ(calendar.adding(CalendarUnit::Day, -1, instantAt(-0.5)), instantAt(-86400.5));
    EXPECT_EQ(calendar.components(instantAt(-0.5)), at(1969, 12, 31, 23, 59, 59));
}

TEST(IcuCalendar, AbsentFieldsAreFirstOnesAndExcessCarriesOver) {
    const IcuCalendar calendar("en_US", "UTC");
    DateComponents sparse;
    sparse.hour = 7;
    EXPECT_EQ(calendar.components(calendar.date(sparse)), at(1, 1, 1, 7));
    sparse.year = 2025;
    EXPECT_EQ(calendar.date(sparse), calendar.date(at(2025, 1, 1, 7)));
    EXPECT_EQ(calendar.date(at(2025, 3, 5, 10, 60)), calendar.date(at(2025, 3, 5, 11)));
    EXPECT_EQ(calendar.date(at(2025, 13, 32)), calendar.date(at(2026, 2, 1)));
}

TEST(IcuCalendar, SkippedAndRepeatedTimesHaveOneMoment) {
    const IcuCalendar calendar("en_US", "Europe/Berlin");
    EXPECT_EQ(calendar.date(at(2025, 3, 30, 2, 30)), instantAt(1'743'296'400));
    EXPECT_EQ(calendar.date(at(2025, 10, 26, 2, 30)), instantAt(1'761'438'600));
}

TEST(IcuCalendar, ServesTwoThreadsAtOnce) {
    const IcuCalendar calendar("en_US", "Europe/Berlin");
    const auto steps = [&calendar](Instant from, Instant to) {
        int wrong = 0;
        for (int round = 0; round < 2000; ++round)
            wrong += calendar.adding(CalendarUnit::Month, 1, from) != to;
        return wrong;
    };
    int wrongThere = 0;
    std::thread other(
        [&] { wrongThere = steps(calendar.date(at(2025, 1, 31)), calendar.date(at(2025, 2, 28))); });
    const int wrongHere = steps(calendar.date(at(1999, 12, 5)), calendar.date(at(2000, 1, 5)));
    other.join();
    EXPECT_EQ(wrongHere + wrongThere, 0);
}

TEST(IcuCalendar, FollowsAChangeOfTheDevicesZone) {
    ::setenv("TZ", "Europe/Berlin", 1);
    const IcuCalendar calendar;
    const Instant moment = instantAt(1'741'187'220);
    EXPECT_EQ(calendar.components(moment), at(2025, 3, 5, 16, 7));
    ::setenv("TZ", "Asia/Tokyo", 1);
    EXPECT_EQ(calendar.components(moment), at(2025, 3, 6, 0, 7));
    EXPECT_EQ(calendar.date(at(2025, 3, 6, 0, 7)), moment);
    ::unsetenv("TZ");
}

} // namespace
} // namespace tessivo
