#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>

namespace tessivo::sqlite {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

NotificationRequest request(const std::string& identifier) {
    return {identifier, {"Title", std::string(300, 'w'), true}, {{2027, 1, 31, 9, 0, {}}, false}};
}

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void overwrite(const std::filesystem::path& file, std::streamoff from, const std::string& with) {
    std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
    stream.seekp(from);
    stream << with;
}

class NotificationQueueFileTest : public testing::Test {
protected:
    void fill() {
        SqliteNotificationQueue queue(file, console);
        for (int number = 0; number < 50; ++number)
            ASSERT_EQ(queue.add(request(std::to_string(number))), std::nullopt);
        ASSERT_EQ(queue.setAuthorization(AuthorizationStatus::Denied), std::nullopt);
    }

    TemporaryFolder folder{"/dev/shm"}; // the test is about locks, not the disk
    std::filesystem::path file = folder / "queue.sqlite";
    fakes::RecordingConsole console;
};

struct DamageCase {
    const char* name;
    std::function<void(const std::filesystem::path&)> damage;
    std::size_t leastSaved; ///< of the 50 requests
};

class DamagedQueueTest : public NotificationQueueFileTest, public testing::WithParamInterface<DamageCase> {};

TEST_P(DamagedQueueTest, IsSetAsideAndWhatCanBeReadGoesIntoANewOne) {
    fill();
    GetParam().damage(file);
    const auto damaged = contents(file);

    SqliteNotificationQueue queue(file, console);
    const auto pending = queue.pending();
    ASSERT_TRUE(pending) << pending.error().description;
    EXPECT_GE(pending.value()->size(), GetParam().leastSaved);
    EXPECT_LT(pending.value()->size(), 50U);
    for (const auto& queued : *pending.value())
        EXPECT_EQ(queued.request, request(std::to_string(queued.sequence - 1)));
    if (GetParam().leastSaved > 0) {
        EXPECT_EQ(queue.authorization().value(), AuthorizationStatus::Denied);
    }
    const auto saved = pending.value()->size();
    EXPECT_EQ(queue.add(request("new")), std::nullopt);
    EXPECT_THAT(*queue.pending().value(), SizeIs(saved + 1));

    EXPECT_EQ(contents(file.string() + ".damaged-1"), damaged);
    ASSERT_THAT(console.lines(), SizeIs(1));
    EXPECT_THAT(console.lines()[0], HasSubstr(file.string() + ".damaged-1"));

    EXPECT_TRUE(SqliteNotificationQueue(file, console).hasLoss().value());
    EXPECT_EQ(queue.clearLoss(), std::nullopt);
    EXPECT_FALSE(SqliteNotificationQueue(file, console).hasLoss().value());
}

/// Overwrites the page that holds the words of the request of that number.
void spoilPageOf(const std::filesystem::path& file, int number) {
    constexpr std::streamoff page = 4096;
    const auto at = contents(file).find(std::to_string(number) + "Title" + std::string(300, 'w'));
    ASSERT_NE(at, std::string::npos);
    overwrite(file, static_cast<std::streamoff>(at) / page * page, std::string(page, '\xff'));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DamagedQueueTest,
    testing::Values(
        DamageCase{"Garbage", [](const auto& file) { std::ofstream(file) << std::string(5000, 'x'); }, 0},
        DamageCase{"CutOff", [](const auto& file) { std::filesystem::resize_file(file, 9000); }, 0},
        DamageCase{"OnePage", [](const auto& file) { spoilPageOf(file, 25); }, 35},
        DamageCase{"TwoPages",
                   [](const auto& file) {
                       spoilPageOf(file, 2);
                       spoilPageOf(file, 25);
                   },
                   22}),
    [](const auto& test) { return test.param.name; });

TEST_F(NotificationQueueFileTest, EachDamagedFileKeepsItsName) {
    for (int time = 1; time <= 2; ++time) {
        std::ofstream(file) << "no queue " << time << std::string(500, ' ');
        ASSERT_TRUE(SqliteNotificationQueue(file, console).pending());
    }
    EXPECT_THAT(contents(file.string() + ".damaged-1"), HasSubstr("no queue 1"));
    EXPECT_THAT(contents(file.string() + ".damaged-2"), HasSubstr("no queue 2"));
}

TEST_F(NotificationQueueFileTest, AnotherProcessGoesOverToTheNewFile) {
    SqliteNotificationQueue helper(file, console);
    ASSERT_TRUE(helper.pending());
    std::filesystem::rename(file, folder / "elsewhere");
    SqliteNotificationQueue app(file, console);
    ASSERT_EQ(app.add(request("a")), std::nullopt);
    EXPECT_THAT(*helper.pending().value(), SizeIs(1));
}

TEST_F(NotificationQueueFileTest, AQueueOfANewerProgramIsLeftAlone) {
    fill();
    auto database = Database::open(file, {0x54515545, 1, ""});
    ASSERT_TRUE(database);
    ASSERT_EQ(database.value().execute("PRAGMA user_version=2; PRAGMA wal_checkpoint(TRUNCATE)"),
              std::nullopt);
    const auto before = contents(file);
    SqliteNotificationQueue queue(file, console);
    EXPECT_FALSE(queue.pending());
    EXPECT_NE(queue.add(request("a")), std::nullopt);
    EXPECT_EQ(contents(file), before);
    EXPECT_THAT(console.lines(), SizeIs(0));
}

TEST_F(NotificationQueueFileTest, TheLedgerForgetsItsOldestEntries) {
    SqliteNotificationQueue queue(file, console);
    const auto show = [&](const std::string& token) {
        ASSERT_EQ(queue.add(request("a")), std::nullopt);
        ASSERT_EQ(queue.retire({queue.pending().value()->front().sequence}, token, instantAt(0)),
                  std::nullopt);
    };
    show("first");
    show("second");
    auto database = Database::open(file, {0x54515545, 1, ""});
    ASSERT_TRUE(database);
    ASSERT_EQ(database.value().execute("UPDATE sqlite_sequence SET seq = 1000 WHERE name = 'pending'"),
              std::nullopt);
    show("last");
    EXPECT_THAT(queue.shownIn("first"), SizeIs(0));
    EXPECT_THAT(queue.shownIn("second"), SizeIs(1));
    EXPECT_THAT(queue.shownIn("last"), SizeIs(1));
}

/// Runs `work` in a process of its own, which ends when it is killed or when the work is done.
pid_t runInProcess(const std::function<void()>& work) {
    const auto process = ::fork();
    if (process == 0) {
        work();
        ::_exit(0);
    }
    return process;
}

int waitFor(pid_t process) {
    int status = 0;
    ::waitpid(process, &status, 0);
    return status;
}

/// On a busy machine another process may hold the file for longer than a change waits; the change then fails
/// as a whole, and is retried.
Outcome persistently(const std::function<Outcome()>& change) {
    Outcome outcome = change();
    for (int attempt = 1; outcome && attempt < 20; ++attempt)
        outcome = change();
    return outcome;
}

TEST_F(NotificationQueueFileTest, TwoProcessesMayOpenAndWriteAtOnce) {
    constexpr int each = 150;
    std::vector<pid_t> writers;
    for (const std::string name : {"a", "b"}) {
        writers.push_back(runInProcess([&] {
            SqliteNotificationQueue queue(file, console);
            for (int number = 0; number < each; ++number) {
                if (persistently([&] { return queue.add(request(name + std::to_string(number))); }))
                    ::_exit(1);
            }
        }));
    }
    SqliteNotificationQueue helper(file, console);
    std::multiset<std::string> retired;
    const auto retireAll = [&] {
        const auto pending = helper.pending();
        ASSERT_TRUE(pending) << pending.error().description;
        for (const auto& queued : *pending.value()) {
            ASSERT_EQ(persistently([&] { return helper.retire({queued.sequence}, "t", instantAt(0)); }),
                      std::nullopt);
            retired.insert(queued.request.identifier);
        }
    };
    while (!HasFatalFailure() && retired.size() < each)
        retireAll();
    for (const auto writer : writers)
        EXPECT_EQ(waitFor(writer), 0);
    retireAll();
    EXPECT_EQ(retired.size(), 2U * each);
    EXPECT_EQ(std::set(retired.begin(), retired.end()).size(), 2U * each);
    EXPECT_THAT(console.lines(), SizeIs(0));
}

TEST_F(NotificationQueueFileTest, WhatWasAddedSurvivesAKill) {
    for (int round = 0; round < 20; ++round) {
        int report[2];
        ASSERT_EQ(::pipe(report), 0);
        const auto writer = runInProcess([&] {
            SqliteNotificationQueue queue(file, console);
            for (int number = 0;; ++number) {
                if (queue.add(request(std::to_string(round) + "-" + std::to_string(number))))
                    ::_exit(1);
                if (::write(report[1], &number, sizeof number) != sizeof number)
                    ::_exit(2);
            }
        });
        ::close(report[1]);
        int acknowledged = -1;
        while (acknowledged < 3 + round)
            ASSERT_EQ(::read(report[0], &acknowledged, sizeof acknowledged),
                      static_cast<ssize_t>(sizeof acknowledged));
        ::kill(writer, SIGKILL);
        waitFor(writer);
        for (int later = 0; ::read(report[0], &later, sizeof later) == static_cast<ssize_t>(sizeof later);)
            acknowledged = later;
        ::close(report[0]);

        SqliteNotificationQueue queue(file, console);
        const auto pending = queue.pending();
        ASSERT_TRUE(pending) << pending.error().description;
        std::set<std::string> identifiers;
        for (const auto& queued : *pending.value())
            identifiers.insert(queued.request.identifier);
        for (int number = 0; number <= acknowledged; ++number)
            EXPECT_TRUE(identifiers.contains(std::to_string(round) + "-" + std::to_string(number)));
    }
    EXPECT_THAT(console.lines(), SizeIs(0));
}

} // namespace
} // namespace tessivo::sqlite
