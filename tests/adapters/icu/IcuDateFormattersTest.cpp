#include "icu/IcuDateFormatters.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace tessivo {
namespace {

using testing::Eq;
using testing::Optional;

constexpr std::string_view dateFormat = "dd MMMM yyyy";
constexpr std::string_view timeFormat = "h:mm a";
constexpr std::string_view fullFormat = "dd MMMM yyyy h:mm a";

struct LocaleCase {
    const char* locale;
    const char* zone;
    const char* written; ///< 5 March 2025, 15:07 UTC in the full pattern
};

void PrintTo(const LocaleCase& c, std::ostream* out) {
    *out << c.locale;
}

/// Month names, digits and years as the Unicode locale data (CLDR 42) have them.
class EveryLocale : public testing::TestWithParam<LocaleCase> {};

TEST_P(EveryLocale, WritesItsOwnWordsDigitsAndYear) {
    const IcuDateFormatters formatters(GetParam().locale, "UTC");
    EXPECT_EQ(formatters.make(fullFormat)->string(instantAt(1'741'187'220)), GetParam().written);
}

TEST_P(EveryLocale, ReadsBackWhatItWroteInEveryMonthAndHour) {
    const IcuDateFormatters formatters(GetParam().locale, GetParam().zone);
    const auto date = formatters.make(dateFormat);
    const auto time = formatters.make(timeFormat);
    const auto full = formatters.make(fullFormat);
    constexpr double step = 25 * 86400 + 7 * 3600 + 13 * 60; // walks through months, hours and minutes
    for (double seconds = -631'152'000; seconds < 2'145'916'800; seconds += step) {
        const Instant moment = instantAt(seconds);
        const std::string text = full->string(moment);
        ASSERT_THAT(full->date(text), Optional(Eq(moment))) << text;

        const std::string day = date->string(moment);
        const auto midnight = date->date(day);
        ASSERT_TRUE(midnight) << day;
        EXPECT_LE(*midnight, moment) << day;
        EXPECT_GT(*midnight + Seconds(26 * 3600), moment) << day;
        EXPECT_EQ(date->string(*midnight), day);

        const std::string hour = time->string(moment);
        const auto anyDay = time->date(hour);
        ASSERT_TRUE(anyDay) << hour;
        EXPECT_EQ(time->string(*anyDay), hour);
        EXPECT_EQ(text, day + " " + hour);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryLocale,
                         testing::Values(LocaleCase{"en_US", "UTC", "05 March 2025 3:07 PM"},
                                         LocaleCase{"en_GB", "Asia/Kolkata", "05 March 2025 3:07 pm"},
                                         LocaleCase{"de_DE", "Asia/Tokyo", "05 März 2025 3:07 PM"},
                                         LocaleCase{"fr_FR", "Africa/Lagos", "05 mars 2025 3:07 PM"},
                                         LocaleCase{"es_ES", "UTC", "05 marzo 2025 3:07 p.\u00a0m."},
                                         LocaleCase{"pl_PL", "UTC", "05 marca 2025 3:07 PM"},
                                         LocaleCase{"tr_TR", "Asia/Dubai", "05 Mart 2025 3:07 ÖS"},
                                         LocaleCase{"vi_VN", "UTC", "05 tháng 3 2025 3:07 CH"},
                                         LocaleCase{"ru_RU", "Asia/Yekaterinburg", "05 марта 2025 3:07 PM"},
                                         LocaleCase{"uk_UA", "UTC", "05 березня 2025 3:07 пп"},
                                         LocaleCase{"el_GR", "UTC", "05 Μαρτίου 2025 3:07 μ.μ."},
                                         LocaleCase{"he_IL", "UTC", "05 מרץ 2025 3:07 אחה״צ"},
                                         LocaleCase{"ar_EG", "Asia/Riyadh", "٠٥ مارس ٢٠٢٥ ٣:٠٧ م"},
                                         LocaleCase{"fa_IR", "Asia/Karachi", "۱۵ اسفند ۱۴۰۳ ۳:۰۷ بعدازظهر"},
                                         LocaleCase{"hi_IN", "UTC", "05 मार्च 2025 3:07 pm"},
                                         LocaleCase{"bn_BD", "UTC", "০৫ মার্চ ২০২৫ ৩:০৭ PM"},
                                         LocaleCase{"th_TH", "Asia/Bangkok", "05 มีนาคม 2568 3:07 หลังเที่ยง"},
                                         LocaleCase{"ja_JP", "Asia/Seoul", "05 3月 2025 3:07 午後"},
                                         LocaleCase{"zh_CN", "UTC", "05 三月 2025 3:07 下午"},
                                         LocaleCase{"ko_KR", "UTC", "05 3월 2025 3:07 오후"}),
                         [](const auto& test) { return std::string(test.param.locale); });

TEST(IcuDateFormatters, ReadNothingThatIsNotWhollyInThePattern) {
    const IcuDateFormatters formatters("en_US", "Europe/Berlin");
    const auto date = formatters.make(dateFormat);
    for (const char* text : {"", " ", "05 March", "05 March 2025 ", "05 March 2025 3:07 PM", "05/03/2025",
                             "31 February 2025", "29 February 2023", "00 March 2025", "32 March 2025",
                             "05 März 2025", "March 05 2025", "05 March 2025\n", "\xff\xfe"})
        EXPECT_EQ(date->date(text), std::nullopt) << text;

    const auto full = formatters.make(fullFormat);
    for (const char* text : {"05 March 2025", "05 March 2025 ", "05 March 2025 15:07",
                             "05 March 2025 15:07 PM", "05 March 2025 3:60 PM", "05 March 2025 3:07 XM"})
        EXPECT_EQ(full->date(text), std::nullopt) << text;
    EXPECT_THAT(full->date("05 March 2025 3:07 PM"), Optional(Eq(instantAt(1'741'183'620))));
}

TEST(IcuDateFormatters, AFormatterReadsOnAfterAFailure) {
    const IcuDateFormatters formatters("en_US", "UTC");
    const auto date = formatters.make(dateFormat);
    EXPECT_EQ(date->date("31 June 2025"), std::nullopt);
    EXPECT_THAT(date->date("01 January 1970"), Optional(Eq(instantAt(0))));
}

TEST(IcuDateFormatters, ASkippedWallTimeIsTheChangeAndARepeatedOneTheFirst) {
    const IcuDateFormatters formatters("en_US", "Europe/Berlin");
    for (const char* skipped : {"30 March 2025 2:00 AM", "30 March 2025 2:30 AM", "30 March 2025 3:00 AM"})
        EXPECT_THAT(formatters.make(fullFormat)->date(skipped), Optional(Eq(instantAt(1'743'296'400))))
            << skipped;
    EXPECT_THAT(formatters.make(fullFormat)->date("26 October 2025 2:30 AM"),
                Optional(Eq(instantAt(1'761'438'600))));
}

TEST(IcuDateFormatters, FollowTheEnvironmentFromOneFormatterToTheNext) {
    const IcuDateFormatters formatters;
    const Instant moment = instantAt(1'741'187'220);
    ::unsetenv("LC_ALL");
    ::setenv("LANG", "en_US.UTF-8", 1);
    ::setenv("LC_TIME", "de_DE.UTF-8", 1);
    ::setenv("TZ", "Europe/Berlin", 1);
    const auto german = formatters.make(fullFormat);
    EXPECT_EQ(german->string(moment), "05 März 2025 4:07 PM");
    ::setenv("LC_ALL", "ru_RU.UTF-8", 1);
    ::setenv("TZ", "Asia/Tokyo", 1);
    EXPECT_EQ(formatters.make(fullFormat)->string(moment), "06 марта 2025 12:07 AM");
    EXPECT_EQ(german->string(moment), "05 März 2025 4:07 PM");
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG", "TZ"})
        ::unsetenv(name);
    EXPECT_EQ(formatters.make(dateFormat)->string(moment), "05 March 2025");
}

} // namespace
} // namespace tessivo
