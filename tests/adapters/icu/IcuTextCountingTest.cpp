#include "icu/IcuTextCounting.h"

#include <gtest/gtest.h>

namespace tessivo {
namespace {

using namespace std::string_view_literals;

TEST(IcuTextCounting, CountsWhatAReaderSees) {
    struct Case {
        std::string_view text;
        std::size_t characters;
    };
    const IcuTextCounting counting;
    for (const auto& [text, characters] : {
             Case{"", 0},
             Case{"Birthday", 8},
             Case{"a\0b"sv, 3},
             Case{"a\r\nb", 3},
             Case{"e\u0301te\u0301", 3},           // accents of their own
             Case{"\u0301", 1},                    // an accent without a letter
             Case{"👨‍👩‍👧‍👦", 1}, // a family joined by zero-width joiners
             Case{"🇩🇪🇫🇷", 2},                      // two flags of two letters each
             Case{"👍🏽!", 2},                 // a skin tone
             Case{"각", 1},                        // a syllable of three letters
             Case{"क्षि", 1},                       // a conjunct of two consonants
             Case{"❤️❤️", 2},              // with variation selectors
             Case{"\xff", 1},
             Case{"\xe2\x82", 2}, // a cut-off euro sign
             Case{"\xe2\x82"
                  "a",
                  3},
             Case{"\xc0\xaf", 2}, // an overlong slash
             Case{"ok\xf0\x9f\x91", 5},
         })
        EXPECT_EQ(counting.characters(text), characters) << text;
}

} // namespace
} // namespace tessivo
