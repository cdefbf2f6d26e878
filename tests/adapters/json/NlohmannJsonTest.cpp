#include "json/NlohmannJson.h"

#include <gtest/gtest.h>

namespace tessivo {
namespace {

TEST(NlohmannJson, ReadsEachKindOfValue) {
    const NlohmannJson json;
    EXPECT_TRUE(json.parse("null").value().isNull());
    EXPECT_EQ(*json.parse("true").value().as<bool>(), true);
    EXPECT_EQ(*json.parse("-3").value().as<std::int64_t>(), -3);
    EXPECT_EQ(*json.parse("9223372036854775807").value().as<std::int64_t>(), 9223372036854775807);
    EXPECT_EQ(*json.parse("9223372036854775808").value().as<double>(), 9223372036854775808.0);
    EXPECT_EQ(*json.parse("3.5").value().as<double>(), 3.5);
    EXPECT_EQ(*json.parse("\"\\u00e9\"").value().as<std::string>(), "\u00e9");
    const auto nested = json.parse(R"([{"a": [1, [2, {}], []], "b": {"c": "d"}}, 4])");
    const auto& list = *nested.value().as<JsonValue::Array>();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].find("a")->as<JsonValue::Array>()->size(), 3u);
    EXPECT_EQ(*list[0].find("b")->find("c")->as<std::string>(), "d");
    EXPECT_EQ(list[0].find("e"), nullptr);
    EXPECT_EQ(list[1].find("a"), nullptr);
    EXPECT_EQ(*json.parse(R"({"a": 1, "a": 2})").value().find("a")->as<std::int64_t>(), 2);
}

TEST(NlohmannJson, RefusesWhatIsNotJson) {
    const NlohmannJson json;
    for (const std::string& text :
         {std::string(), std::string("{"), std::string("[1,]"), std::string("<html>"), std::string("{} {}"),
          std::string("\"\xff\""), std::string("nul")})
        EXPECT_FALSE(json.parse(text)) << text;
}

TEST(NlohmannJson, RefusesANestThatWouldEndTheStack) {
    const auto nest = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(NlohmannJson().parse(nest(512)));
    EXPECT_FALSE(NlohmannJson().parse(nest(513)));
    EXPECT_FALSE(NlohmannJson().parse(std::string(2'000'000, '[')));
}

TEST(NlohmannJson, WritesWhatItReads) {
    const NlohmannJson json;
    const std::string text = R"({"a":[1,-2.5,null,true,"\"\n"],"b":{}})";
    EXPECT_EQ(json.write(json.parse(text).value()), text);
}

} // namespace
} // namespace tessivo
