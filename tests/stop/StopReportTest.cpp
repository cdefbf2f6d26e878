#include "app/stop/StopReport.h"

#include "Event/CoreDataStack.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "fakes/RecordingConsole.h"
#include "icu/IcuDateFormatters.h"
#include "processes/KilledProcess.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/StoredDates.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"
#include "json/JsonLocalizedTexts.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <algorithm>
#include <fstream>

namespace tessivo {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::Ne;
using testing::Optional;

namespace fs = std::filesystem;

const std::vector<std::string> locales{"en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "ru_RU", "ja_JP", "ar_EG",
                                       "fa_IR", "th_TH", "pl_PL", "cs_CZ", "hr_HR", "zh_CN", "hi_IN"};

/// All months, both halves of the day, and a whole day.
std::vector<Instant> moments() {
    std::vector<Instant> all;
    for (int month = 0; month < 12; ++month)
        all.push_back(instantAt(1'925'000'000.0 - 1'925'000'000 % 60 + month * 31 * 86'400 + month * 7'000));
    return all;
}

/// Events of a store, as the program writes and reads them in one locale or another.
class StoredDatesTest : public testing::Test {
protected:
    fs::path file() const { return folder / "events.sqlite"; }

    void makeEventsIn(const std::string& locale) {
        sqlite::SqliteEventStore store(file(), [&] { return locale; });
        CoreDataStack stack(store, console);
        const IcuDateFormatters formatters(locale, zone);
        const auto date = formatters.make(dateFormat);
        const auto time = formatters.make(timeFormat);
        EventItem item = plainEvent();
        for (const Instant moment : moments()) {
            item.dateEvent = date->string(moment);
            item.timeEvent = time->string(moment);
            stack.addEvent(item);
        }
        item.timeEvent.reset();
        stack.addEvent(item);
    }

    /// When a program in that locale thinks the events are; empty for dates that it cannot parse.
    std::vector<std::optional<Instant>> momentsIn(const std::string& locale) {
        sqlite::SqliteEventStore store(file());
        CoreDataStack stack(store, console);
        const IcuDateFormatters formatters(locale, zone);
        const auto full = formatters.make(fullFormat);
        const auto date = formatters.make(dateFormat);
        std::vector<std::optional<Instant>> read;
        for (const auto& event : stack.fetchEvents())
            read.push_back(eventDateOf(event->dateEvent(), event->timeEvent(), *full, *date));
        return read;
    }

    StopReport reportIn(const std::string& locale) {
        return makeStopReport(folder.path(), locale, "en", texts);
    }

    fs::path copy(int number) const { return file().string() + ".before-" + std::to_string(number); }

    static constexpr const char* zone = "Europe/Berlin";
    TemporaryFolder folder{"/dev/shm"};
    fakes::RecordingConsole console;
    JsonLocalizedTexts texts =
        JsonLocalizedTexts::fromJson(R"({"stop.advice.dates": "written in %1, now %2"})").value();
};

class EachLocale : public StoredDatesTest, public testing::WithParamInterface<std::string> {};

TEST_P(EachLocale, IsReadAgainAfterItsDatesWereRewrittenIntoAnyOtherAndBack) {
    makeEventsIn(GetParam());
    const auto original = momentsIn(GetParam());
    ASSERT_THAT(original, Each(Ne(std::nullopt)));
    for (const auto& other : locales) {
        SCOPED_TRACE(other);
        const bool readable =
            std::ranges::all_of(momentsIn(other), [](const auto& moment) { return moment.has_value(); });
        const auto report = reportIn(other);
        EXPECT_EQ(report.datesLocale, readable ? "" : GetParam());
        EXPECT_EQ(report.canRewriteDates, !readable);
        ASSERT_EQ(rewriteDates(folder.path(), other), std::nullopt);
        EXPECT_EQ(momentsIn(other), original);
        ASSERT_EQ(rewriteDates(folder.path(), GetParam()), std::nullopt);
        EXPECT_EQ(momentsIn(GetParam()), original);
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, EachLocale, testing::ValuesIn(locales),
                         [](const auto& test) { return test.param; });

TEST_F(StoredDatesTest, AKillInTheMiddleOfTheRewritingLeavesAllDatesInOneLocale) {
    bool killed = true;
    for (int write = 1; killed; ++write) {
        SCOPED_TRACE(write);
        fs::remove_all(folder.path());
        makeEventsIn("de_DE");
        const auto original = momentsIn("de_DE");
        killed = !runUntilWrite(write, [&] {
            if (rewriteDates(folder.path(), "ru_RU"))
                ::_exit(1);
        });
        const bool done = reportIn("de_DE").datesLocale == "ru_RU";
        ASSERT_EQ(momentsIn(done ? "ru_RU" : "de_DE"), original);
        ASSERT_TRUE(done || killed);
        if (fs::exists(copy(1))) {
            fs::rename(copy(1), file());
            ASSERT_EQ(momentsIn("de_DE"), original) << "the copy is not whole";
        }
        ASSERT_FALSE(done && !fs::exists(file()));
    }
}

TEST_F(StoredDatesTest, EachRewritingKeepsACopyOfItsOwn) {
    makeEventsIn("de_DE");
    ASSERT_EQ(rewriteDates(folder.path(), "ru_RU"), std::nullopt);
    ASSERT_EQ(rewriteDates(folder.path(), "ja_JP"), std::nullopt);
    for (const auto& [number, locale] : {std::pair(1, "de_DE"), std::pair(2, "ru_RU")}) {
        fs::copy_file(copy(number), file(), fs::copy_options::overwrite_existing);
        EXPECT_THAT(momentsIn(locale), Each(Ne(std::nullopt)));
        EXPECT_EQ(fs::status(copy(number)).permissions(), fs::perms(0600));
    }
}

TEST_F(StoredDatesTest, ADateThatNobodyCanReadLeavesAllAsTheyWere) {
    makeEventsIn("de_DE");
    auto database = sqlite::Database::open(file(), sqlite::eventSchema);
    ASSERT_EQ(database.value().execute("UPDATE events SET dateEvent = '05 Frimaire 2031' WHERE key = 7"),
              std::nullopt);
    const auto before = momentsIn("de_DE");
    const auto report = reportIn("fr_FR");
    EXPECT_EQ(report.datesLocale, "de_DE");
    EXPECT_EQ(report.advice, "written in German (Germany), now French (France)");
    EXPECT_FALSE(report.canRewriteDates);
    EXPECT_THAT(rewriteDates(folder.path(), "fr_FR"), Optional(HasSubstr("Frimaire")));
    EXPECT_EQ(momentsIn("de_DE"), before);
}

TEST_F(StoredDatesTest, EventsOfSeveralLocalesAreEachRewrittenFromTheirOwn) {
    makeEventsIn("de_DE");
    makeEventsIn("th_TH");
    EXPECT_TRUE(reportIn("en_US").canRewriteDates);
    ASSERT_EQ(rewriteDates(folder.path(), "en_US"), std::nullopt);
    auto expected = momentsIn("en_US");
    EXPECT_EQ(expected.size(), 2 * moments().size() + 2);
    EXPECT_THAT(expected, Each(Ne(std::nullopt)));
    EXPECT_TRUE(std::equal(expected.begin(), expected.begin() + expected.size() / 2,
                           expected.begin() + expected.size() / 2));
}

TEST_F(StoredDatesTest, AStoreThatCannotBeOpenedIsWhatTheReportIsAbout) {
    std::ofstream(file()) << "no database";
    const auto report = reportIn("de_DE");
    EXPECT_EQ(report.advice, "stop.advice.store");
    EXPECT_EQ(report.file, file().string());
    EXPECT_FALSE(report.canRewriteDates);
}

TEST_F(StoredDatesTest, ASoundStoreIsNotBlamed) {
    makeEventsIn("de_DE");
    EXPECT_EQ(reportIn("de_DE").advice, "stop.advice.other");
}

} // namespace
} // namespace tessivo
