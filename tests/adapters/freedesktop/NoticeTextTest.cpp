#include "freedesktop/NoticeText.h"

#include "freedesktop/ReminderService.h"

#include <gtest/gtest.h>

namespace tessivo::freedesktop {
namespace {

TEST(NoticeTextTest, KeepsTextAndReplacesWhatIsNone) {
    struct Case {
        std::string text;
        std::string valid;
    };
    using namespace std::string_literals;
    const std::string bad = "\xEF\xBF\xBD";
    const Case cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"Ä я 本 🎂", "Ä я 本 🎂"},
        {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},    // the last character there is
        {"a\0b"s, "a" + bad + "b"},                  // a zero would end the text
        {"\x80", bad},                               // a continuation without a start
        {"\xC3", bad},                               // breaks off
        {"\xE2\x82x", bad + bad + "x"},              // breaks off inside a text
        {"\xC0\x80", bad + bad},                     // a zero in disguise
        {"\xED\xA0\x80", bad + bad + bad},           // half of a pair of 16-bit units
        {"\xF4\x90\x80\x80", bad + bad + bad + bad}, // beyond the last character
        {"\xFF\xFE", bad + bad},
    };
    for (const auto& [text, valid] : cases)
        EXPECT_EQ(validText(text), valid) << text;
}

TEST(NoticeTextTest, MarkupIsShownAsItStands) {
    EXPECT_EQ(escapedMarkup("<b>5 > 3 & \"4\"</b> &amp;"),
              "&lt;b&gt;5 &gt; 3 &amp; \"4\"&lt;/b&gt; &amp;amp;");
}

TEST(ReminderServiceTest, KnowsTheNewerVersion) {
    EXPECT_TRUE(isNewerVersion("1.10", "1.9"));
    EXPECT_TRUE(isNewerVersion("1.0.1", "1.0"));
    EXPECT_TRUE(isNewerVersion("2", "1.99.99"));
    EXPECT_FALSE(isNewerVersion("1.0", "1.0.0"));
    EXPECT_FALSE(isNewerVersion("1.9", "1.10"));
    EXPECT_FALSE(isNewerVersion("", "0.1"));
    EXPECT_FALSE(isNewerVersion("next", "0.1"));
}

} // namespace
} // namespace tessivo::freedesktop
