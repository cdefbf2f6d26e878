#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
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
    EventItem item;
    item.title = std::to_string(version);
    item.dateEvent =
        std::string(static_cast<std::size_t>(version % 5000), 'd'); // rows of one page and of several
    item.repEvent = item.alertReminder = item.repReminder = item.timeFormat = item.color = item.gradient = 0;
    item.eventType = true;
    item.id = id;
    return item;
}

/// Adds and updates without end; each write carries a higher version than the one before.
[[noreturn]] void writeUntilKilled(const std::filesystem::path& file, int firstVersion, unsigned seed,
                                   int report) {
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore store(file);
    CoreDataStack stack(store, console);
    std::mt19937 random(seed);
    std::vector<Uuid> known;
    for (const auto& row : stack.fetchEvents())
        known.push_back(*row->id());
    for (int version = firstVersion;; ++version) {
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
    /// Lets the program run for `writes` acknowledged writes and a random part of the next ones, and kills
    /// it.
    void runAndKill(int writes) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(ends[0]);
            writeUntilKilled(file, nextVersion, static_cast<unsigned>(random()), ends[1]);
        }
        ::close(ends[1]);
        for (int write = 0; write < writes && readReport(ends[0]); ++write) {
        }
        for (std::atomic<unsigned long> moment = random() % 400'000 + 1; --moment > 0;) {
        }
        ::kill(child, SIGKILL);
        while (readReport(ends[0])) {
        }
        ::close(ends[0]);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the program ended by itself";
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

    TemporaryFolder folder;
    std::filesystem::path file = folder / "events.db";
    std::mt19937 random{20261122};
    std::map<Uuid, int> acknowledged; ///< the last version reported
    int nextVersion = 1;
    int reports = 0;
};

TEST_F(DurabilityTest, NoAcknowledgedWriteIsLostToAKillAtAnyMoment) {
    for (int kill = 0; kill < 200; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        ASSERT_NO_FATAL_FAILURE(runAndKill(static_cast<int>(random() % 6)));
        ASSERT_NO_FATAL_FAILURE(expectSound());
        ASSERT_NO_FATAL_FAILURE(expectNothingLost());
    }
    EXPECT_GT(reports, 300);
    RecordProperty("acknowledged", reports);
}

} // namespace
} // namespace tessivo
