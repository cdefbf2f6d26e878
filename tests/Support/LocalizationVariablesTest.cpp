#include "Support/LocalizationVariables.h"
#include "support/Resources.h"
#include "json/JsonLocalizedTexts.h"
#include "json/NlohmannJson.h"
#include "json/TextTable.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <vector>

namespace tessivo {
namespace {

using testing::IsSupersetOf;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

std::string contentsOf(const std::string& language, const std::string& folder = "texts") {
    return resource(folder + "/" + language + ".json");
}

/// Notes the keys that are asked for, and answers with the key in brackets.
class AskedKeys final : public LocalizedTexts {
public:
    std::string localizedString(std::string_view key) const override {
        asked.emplace_back(key);
        return "[" + std::string(key) + "]";
    }

    mutable std::vector<std::string> asked;
};

TEST(LocalizationVariables, AskOnceForEachKeyAndKeepTheAnswerUnderIt) {
    const AskedKeys texts;
    const LocalizationVariables variables(texts);
    EXPECT_EQ(texts.asked.size(), 30U);
    EXPECT_EQ(std::set(texts.asked.begin(), texts.asked.end()).size(), 30U);
    EXPECT_EQ(texts.asked.front(), "firstOnBoardingHeader");
    EXPECT_EQ(texts.asked.back(), "done");
    EXPECT_EQ(variables.and_, "[and]");
    EXPECT_EQ(variables.addEvent, "[addEvent]");
    EXPECT_EQ(variables.inACertain, "[inACertain]");
    EXPECT_EQ(variables.next, "[next]");
}

class EveryLanguage : public testing::TestWithParam<const char*> {};

TextTable tableOf(const char* language) {
    const auto table = readTextTable(contentsOf(language));
    EXPECT_TRUE(table) << table.error().description;
    return table ? table.value() : TextTable();
}

std::vector<std::string> keysOf(const TextTable& table) {
    std::vector<std::string> keys;
    for (const auto& [key, text] : table)
        keys.push_back(key);
    return keys;
}

TEST_P(EveryLanguage, HasTheKeysOfTheOthersEachWithAText) {
    const TextTable table = tableOf(GetParam());
    EXPECT_THAT(keysOf(table), UnorderedElementsAreArray(keysOf(tableOf("en"))));
    for (const auto& [key, text] : table)
        EXPECT_NE(text.find_first_not_of(" \n"), std::string::npos) << key << " is blank";
}

TEST_P(EveryLanguage, HasTheNamedTextsAndThoseOfTheApplications) {
    const AskedKeys wanted;
    const LocalizationVariables variables(wanted);
    const auto applications = NlohmannJson().parse(resource("applications.json"));
    for (const auto& application : *applications.value().as<JsonValue::Array>()) {
        for (const char* field : {"title", "subTitle"})
            wanted.asked.push_back(*application.find(field)->as<std::string>());
    }
    EXPECT_THAT(keysOf(tableOf(GetParam())),
                IsSupersetOf(std::set(wanted.asked.begin(), wanted.asked.end())));
}

TEST(EnglishTexts, AreTheKeysThemselvesWhereAKeyIsNoName) {
    const AskedKeys named;
    const LocalizationVariables variables(named);
    for (const auto& [key, text] : tableOf("en")) {
        if (std::ranges::count(named.asked, key) == 0) {
            EXPECT_EQ(text, key);
        }
    }
}

TEST_P(EveryLanguage, KeepsTheShapesThatScreensLeanOn) {
    const auto texts = JsonLocalizedTexts::fromJson(contentsOf(GetParam()));
    ASSERT_TRUE(texts);
    const LocalizationVariables shown(texts.value());
    EXPECT_EQ(std::ranges::count(shown.addEvent, '\n'), 1) << "the empty list says two lines";
    for (const std::string& oneLine :
         {shown.next, shown.done, shown.eventTitle, shown.addTitle, shown.alertRate, shown.days,
          shown.inACertain, shown.yourEventTitle, shown.dateOfEvent})
        EXPECT_EQ(oneLine.find('\n'), std::string::npos) << oneLine;
    for (const char* before : {"In ", "Since ", "Color ", "Gradient "})
        EXPECT_TRUE(texts.value().localizedString(before).ends_with(' '))
            << before << "a number follows at once";
    for (const char* open : {"Title (", "Reminder Message ("})
        EXPECT_TRUE(texts.value().localizedString(open).ends_with('(')) << "the count follows in brackets";
    EXPECT_NE(shown.alertYes, shown.alertNo);
    EXPECT_TRUE(shown.share.ends_with(' ') || shown.share.ends_with("：")) << "an address follows at once";
}

TEST_P(EveryLanguage, TellsTroubleWithTheSameParticularsAsEnglish) {
    const auto english = readTextTable(contentsOf("en", "machine-texts"));
    const auto table = readTextTable(contentsOf(GetParam(), "machine-texts"));
    ASSERT_TRUE(table) << table.error().description;
    EXPECT_EQ(table.value().size(), english.value().size());
    for (const auto& [key, text] : english.value()) {
        const auto found = table.value().find(key);
        ASSERT_NE(found, table.value().end()) << key;
        for (const char* particular : {"%1", "%2"})
            EXPECT_EQ(found->second.find(particular) == std::string::npos,
                      text.find(particular) == std::string::npos)
                << key << " " << particular;
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, EveryLanguage, testing::Values("en", "de", "fr", "es", "ru", "ja", "ar"),
                         [](const auto& test) { return std::string(test.param); });

TEST(EveryLanguageFile, IsOneOfTheTestedOnes) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(resourcesFolder() / "texts"))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, UnorderedElementsAre("en.json", "de.json", "fr.json", "es.json", "ru.json", "ja.json",
                                            "ar.json"));
}

} // namespace
} // namespace tessivo
