#include "Ports/SavedSettings.h"

#include "fakes/MemorySavedSettings.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/SqliteSavedSettings.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <memory>
#include <ostream>

namespace tessivo {
namespace {

using testing::IsEmpty;
using testing::Optional;
using Made = std::unique_ptr<SavedSettings>;

/// What the settings are after a restart of the program is what `reopen` makes of them.
struct Implementation {
    const char* name;
    std::function<Made(const std::filesystem::path&, Console&)> open;
    std::function<void(Made&, const std::filesystem::path&, Console&)> reopen;
};

Made openSqlite(const std::filesystem::path& file, Console& console) {
    return std::make_unique<sqlite::SqliteSavedSettings>(file, console);
}

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

const Implementation implementations[] = {
    {"Memory", [](const auto&, auto&) { return std::make_unique<fakes::MemorySavedSettings>(); },
     [](Made&, const auto&, auto&) {}},
    {"Sqlite", openSqlite,
     [](Made& settings, const auto& file, auto& console) {
         settings.reset();
         settings = openSqlite(file, console);
     }},
};

class SavedSettingsContract : public testing::TestWithParam<Implementation> {
protected:
    void TearDown() override { EXPECT_THAT(console.lines(), IsEmpty()); }
    void restart() { GetParam().reopen(settings, folder / "settings.db", console); }

    TemporaryFolder folder;
    fakes::RecordingConsole console;
    Made settings = GetParam().open(folder / "settings.db", console);
};

TEST_P(SavedSettingsContract, WhatWasNeverSetIsAbsent) {
    EXPECT_FALSE(settings->contains("EventSize"));
    EXPECT_EQ(settings->integer("EventSize"), std::nullopt);
    EXPECT_EQ(settings->boolean("isFirstLaunch"), std::nullopt);
    EXPECT_EQ(settings->text("rateUs"), std::nullopt);
}

TEST_P(SavedSettingsContract, ValuesOutliveTheProgram) {
    settings->setInteger("SecondOpen", std::numeric_limits<long>::min());
    settings->setBoolean("isFirstLaunch", false);
    settings->setText("rateUs", std::string_view("a\0\xF0\x9F\x8E\x82", 6));
    settings->setText("", "");
    for (int run = 0; run < 2; ++run) {
        EXPECT_THAT(settings->integer("SecondOpen"), Optional(std::numeric_limits<long>::min()));
        EXPECT_THAT(settings->boolean("isFirstLaunch"), Optional(false));
        EXPECT_THAT(settings->text("rateUs"), Optional(std::string("a\0\xF0\x9F\x8E\x82", 6)));
        EXPECT_THAT(settings->text(""), Optional(std::string()));
        restart();
    }
}

TEST_P(SavedSettingsContract, ARemovedKeyIsAbsent) {
    settings->setText("rateUs", "1");
    settings->setText("adsShow", "2");
    settings->remove("rateUs");
    settings->remove("never set");
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(settings->text("rateUs"), std::nullopt);
        EXPECT_THAT(settings->text("adsShow"), Optional(std::string("2")));
        restart();
    }
}

TEST_P(SavedSettingsContract, TheLastWriteCountsAlsoOverItsKind) {
    settings->setText("key", "1");
    settings->setInteger("key", 1);
    settings->setBoolean("key", true);
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(settings->contains("key"));
        EXPECT_THAT(settings->boolean("key"), Optional(true));
        EXPECT_EQ(settings->integer("key"), std::nullopt);
        EXPECT_EQ(settings->text("key"), std::nullopt);
        restart();
    }
}

TEST_P(SavedSettingsContract, KeysThatDifferByCaseAreDifferent) {
    settings->setInteger("Key", 1);
    settings->setInteger("key", 2);
    restart();
    EXPECT_THAT(settings->integer("Key"), Optional(1));
    EXPECT_THAT(settings->integer("key"), Optional(2));
}

INSTANTIATE_TEST_SUITE_P(Settings, SavedSettingsContract, testing::ValuesIn(implementations),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace tessivo
