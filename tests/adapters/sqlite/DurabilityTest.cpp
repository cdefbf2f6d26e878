#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "fakes/RecordingConsole.h"
#include "processes/KilledProcess.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <sys/wait.h>
#include <unistd.h>

#include <map>
#include <random>

namespace tessivo {
namespace {

/// What the killed program reports of each operation after it has returned.
struct Acknowledgement {
    Uuid id;
    int version;
};

Uuid numbered(int number) {
    Uuid id;
    for (std::size_t index = 0; index < sizeof number; ++index)
        id.bytes[index] = static_cast<std::uint8_t>(number >> 8 * index);
    return id;
}

EventItem eventOf(const Uuid& id, int version) {
    // Rows of one page and of several.
    return plainEvent(std::to_string(version), std::string(static_cast<std::size_t>(version % 5000), 'd'),
                      id);
}

/// Adds and updates; each write carries a higher version than the one before.
void addAndUpdate(const std::filesystem::path& file, int firstVersion, int writes, unsigned seed,
                  int report) {
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore store(file);
    CoreDataStack stack(store, console);
    std::mt19937 random(seed);
    std::vector<Uuid> known;
    for (const auto& row : stack.fetchEvents())
        known.push_back(*row->id());
    for (int version = firstVersion; version < firstVersion + writes; ++version) {
        Acknowledgement done{numbered(version), version};
        if (known.empty() || random() % 3 == 0) {
            stack.addEvent(eventOf(done.id, version));
            known.push_back(done.id);
        } else {
            done.id = known[random() % known.size()];
            stack.updateTitle(done.id, std::to_string(version));
        }
        if (!console.lines().empty() || ::write(report, &done, sizeof done) != sizeof done)
            ::_exit(1);
    }
}

class DurabilityTest : public testing::Test {
protected:
    /// Starts the program, lets it write, and kills it at that write; false if it was never reached.
    bool runAndKill(int write, int writes) {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const auto seed = static_cast<unsigned>(random());
        const bool ended =
            runUntilWrite(write, [&] { addAndUpdate(file, nextVersion, writes, seed, ends[1]); });
        ::close(ends[1]);
        while (readReport(ends[0])) {
        }
        ::close(ends[0]);
        return !ended;
    }

    bool readReport(int end) {
        Acknowledgement done{};
        if (::read(end, &done, sizeof done) != sizeof done)
            return false;
        acknowledged[done.id] = done.version;
        nextVersion = done.version + 1;
        ++reports;
        return true;
    }

    void expectSound() {
        auto database = sqlite::Database::open(file, sqlite::eventSchema);
        ASSERT_TRUE(database) << database.error().description;
        auto check = database.value().prepare("PRAGMA integrity_check");
        ASSERT_TRUE(check);
        ASSERT_EQ(check.value().step(), sqlite::Step::Row);
        ASSERT_EQ(check.value().text(0), "ok");
    }

    /// Each row has its last acknowledged version, or that of the one write which was under way.
    void expectNothingLost() {
        fakes::RecordingConsole console;
        sqlite::SqliteEventStore store(file);
        CoreDataStack stack(store, console);
        std::map<Uuid, int> found;
        for (const auto& row : stack.fetchEvents())
            found[*row->id()] = std::stoi(*row->title());
        for (const auto& [id, version] : acknowledged) {
            ASSERT_TRUE(found.contains(id)) << "an acknowledged event is gone";
            ASSERT_TRUE(found[id] == version || found[id] == nextVersion) << found[id] << " for " << version;
        }
        ASSERT_LE(found.size(), acknowledged.size() + 1);
        acknowledged = found; // the write under way counts from here on
        ++nextVersion;
    }

    // In memory: a kill loses no power, and a disk would have to flush ten thousand times.
    TemporaryFolder folder{"/dev/shm"};
    std::filesystem::path file = folder / "events.db";
    std::mt19937 random{20261122};
    std::map<Uuid, int> acknowledged; ///< the last version reported
    int nextVersion = 1;
    int reports = 0;
};

TEST_F(DurabilityTest, AKillAtAnyWriteOfAFirstStartLeavesAStoreThatOpens) {
    int write = 0;
    for (bool killed = true; killed;) {
        SCOPED_TRACE("killed at write " + std::to_string(++write));
        killed = runAndKill(write, 1);
        ASSERT_NO_FATAL_FAILURE(expectSound());
        ASSERT_NO_FATAL_FAILURE(expectNothingLost());
        std::filesystem::remove_all(file.parent_path());
        acknowledged.clear();
    }
    EXPECT_GT(write, 15);
}

/// Makes the tables in the file itself, or writes a row, with a rollback journal beside it.
void writeWithJournal(const std::filesystem::path& file) {
    ::sqlite3* connection = nullptr;
    const std::string marks = "PRAGMA application_id=" + std::to_string(sqlite::eventSchema.applicationId) +
                              ";PRAGMA user_version=" + std::to_string(sqlite::eventSchema.version);
    const bool isNew = !std::filesystem::exists(file);
    if (sqlite3_open(file.c_str(), &connection) != SQLITE_OK)
        ::_exit(1);
    for (const std::string& sql : {std::string("PRAGMA cache_size=1; PRAGMA journal_mode=DELETE; BEGIN"),
                                   isNew ? sqlite::eventSchema.sql + marks : std::string(),
                                   std::string("UPDATE events SET title = title || 'x'; COMMIT")}) {
        if (sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            ::_exit(1);
    }
}

TEST_F(DurabilityTest, WhatIsLeftOfATransactionWithARollbackJournalIsRolledBack) {
    const auto original = folder / "original.db";
    for (const bool isNew : {true, false}) {
        bool killed = true;
        for (int write = 1; killed; ++write) {
            SCOPED_TRACE((isNew ? "creation" : "update") + std::string(", write ") + std::to_string(write));
            if (!isNew)
                std::filesystem::copy_file(original, file);
            killed = !runUntilWrite(write, [&] { writeWithJournal(file); });
            ASSERT_NO_FATAL_FAILURE(expectSound());
            ASSERT_NO_FATAL_FAILURE(expectNothingLost());
            for (const char* part : {"", "-journal", "-wal", "-shm"})
                std::filesystem::remove(file.string() + part);
        }
        // The second round begins with rows on many pages.
        fakes::RecordingConsole console;
        sqlite::SqliteEventStore store(original);
        CoreDataStack stack(store, console);
        for (int row = 1; row < 20; ++row)
            stack.addEvent(eventOf(numbered(row), acknowledged[numbered(row)] = row * 200));
    }
}

TEST_F(DurabilityTest, NoAcknowledgedWriteIsLostToAKillAtAnyMoment) {
    int kills = 0;
    while (kills < 1000) {
        SCOPED_TRACE("kill " + std::to_string(kills));
        if (kills % 100 == 0) { // a store's life from its first start on
            std::filesystem::remove_all(file.parent_path());
            acknowledged.clear();
        }
        kills += runAndKill(static_cast<int>(random() % 60) + 1, 4) ? 1 : 0;
        ASSERT_NO_FATAL_FAILURE(expectSound());
        ASSERT_NO_FATAL_FAILURE(expectNothingLost());
    }
    EXPECT_GT(reports, 300);
    RecordProperty("acknowledged", reports);
}

TEST(Durability, TheLogDoesNotGrowWithRunsThatAreKilled) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "settings.sqlite";
    std::vector<std::uintmax_t> sizes;
    for (int run = 0; run < 12; ++run) {
        const pid_t child = ::fork();
        if (child == 0) {
            fakes::RecordingConsole console;
            sqlite::SqliteSavedSettings settings(file, console);
            settings.setInteger("SecondOpen", run);
            settings.setText("rateUs", "0");
            ::_exit(console.lines().empty() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
        sizes.push_back(std::filesystem::file_size(file.string() + "-wal"));
    }
    EXPECT_LE(sizes.back(), sizes.front());
}

} // namespace
} // namespace tessivo
