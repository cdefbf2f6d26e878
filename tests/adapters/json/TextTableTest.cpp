#include "json/JsonLocalizedTexts.h"
#include "json/JsonNamedColors.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::HasSubstr;

TEST(JsonNamedColors, ReadsSixAndEightDigitsInEitherCase) {
    const auto colors = JsonNamedColors::fromJson(R"({"plain": "#FF0080", "clear": "#00ff0033"})");
    ASSERT_TRUE(colors) << colors.error().description;
    EXPECT_EQ(colors.value().colorNamed("plain"), (Color{1, 0, 128.0 / 255, 1}));
    EXPECT_EQ(colors.value().colorNamed("clear"), (Color{0, 1, 0, 0.2}));
    EXPECT_EQ(colors.value().colorNamed("Plain"), std::nullopt);
}

TEST(JsonNamedColors, OneBadColourFailsTheCatalogueByName) {
    for (const char* bad : {"", "FF0080", "#FF008", "#FF00801", "#FF00801122", "#GG0080", "#-F0080",
                            "#+F0080", "# F0080", "#FF008 ", "red"}) {
        const auto colors =
            JsonNamedColors::fromJson(std::string(R"({"good": "#000000", "odd": ")") + bad + "\"}");
        ASSERT_FALSE(colors) << bad;
        EXPECT_THAT(colors.error().description, HasSubstr("\"odd\"")) << bad;
    }
}

TEST(JsonTables, WhatIsNoObjectOfTextsIsAnErrorThatSaysWhy) {
    struct Case {
        const char* json;
        const char* reason;
    };
    for (const auto& [json, reason] : {
             Case{"", "parse error"},
             Case{"{", "line 1"},
             Case{R"({"a": "b",})", "parse error"},
             Case{"{\"a\": \"\xff\"}", "UTF-8"},
             Case{R"({"a": "b"} x)", "parse error"},
             Case{R"(["a"])", "no JSON object"},
             Case{"null", "no JSON object"},
             Case{R"({"a": 1})", "\"a\" is no text"},
             Case{R"({"a": {"b": "c"}})", "\"a\" is no text"},
             Case{R"({"a": "x", "b": "y", "a": "z"})", "\"a\" appears twice"},
         }) {
        const auto texts = JsonLocalizedTexts::fromJson(json);
        ASSERT_FALSE(texts) << json;
        EXPECT_EQ(texts.error().domain, "JSON");
        EXPECT_THAT(texts.error().description, HasSubstr(reason)) << json;
        EXPECT_FALSE(JsonNamedColors::fromJson(json)) << json;
    }
}

TEST(JsonLocalizedTexts, AKeyWithoutATextIsItsOwnText) {
    const auto texts = JsonLocalizedTexts::fromJson(R"({"next": "Weiter", "empty": ""})");
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts.value().localizedString("next"), "Weiter");
    EXPECT_EQ(texts.value().localizedString("empty"), "");
    EXPECT_EQ(texts.value().localizedString("done"), "done");
    EXPECT_EQ(JsonLocalizedTexts().localizedString("next"), "next");
}

} // namespace
} // namespace tessivo
