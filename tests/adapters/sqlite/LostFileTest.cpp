#include "Event/CoreDataStack.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/resource.h>

#include <csignal>
#include <cstdint>
#include <functional>

namespace tessivo::sqlite {
namespace {

using testing::AllOf;
using testing::HasSubstr;

namespace fs = std::filesystem;

/// A store in use, with one event in it, and a copy of its file from before the last save.
struct StoreInUse {
    StoreInUse() {
        {
            SqliteEventStore first(file);
            CoreDataStack adding(first, console);
            adding.addEvent(plainEvent("Copied"));
        }
        fs::copy_file(file, copy);
        EXPECT_EQ(save("Saved"), std::nullopt);
    }

    Outcome save(const std::string& title) {
        stack.fetchEvents().front()->setTitle(title);
        return stack.viewContext().save();
    }

    TemporaryFolder folder;
    fs::path file = folder / "events.db";
    fs::path log = folder / "events.db-wal";
    fs::path copy = folder / "copy.db";
    fs::path away = folder / "away.db";
    fakes::RecordingConsole console;
    SqliteEventStore store{file};
    CoreDataStack stack{store, console};
};

TEST(LostFileTest, WithAnotherFileInItsPlaceNothingIsSavedAndNothingForgotten) {
    struct {
        const char* name;
        std::function<void(const StoreInUse&)> lose;
        const char* reason;
    } const cases[] = {
        {"moved away", [](auto& it) { fs::rename(it.file, it.away); }, "has been removed"},
        {"replaced", [](auto& it) { fs::rename(it.copy, it.file); }, "has been replaced"},
        {"copied over",
         [](auto& it) { fs::copy_file(it.copy, it.file, fs::copy_options::overwrite_existing); },
         "has been overwritten"},
        {"log removed", [](auto& it) { fs::remove(it.log); }, "has been removed"},
    };
    for (const auto& [name, lose, reason] : cases) {
        SCOPED_TRACE(name);
        StoreInUse use;
        lose(use);
        const auto error = use.save("Changed");
        ASSERT_TRUE(error);
        EXPECT_THAT(error->description, AllOf(HasSubstr(use.file.string()), HasSubstr(reason)));
        EXPECT_EQ(use.stack.fetchEvents().front()->title(), "Changed");
        EXPECT_TRUE(use.stack.fetchEvents().front()->hasChanges());
    }
}

TEST(LostFileTest, AFileThatIsPutBackTakesSavesAgain) {
    StoreInUse use;
    fs::rename(use.file, use.away);
    ASSERT_TRUE(use.save("Changed"));
    fs::rename(use.away, use.file);
    EXPECT_EQ(use.stack.viewContext().save(), std::nullopt);
    CoreDataStack other(use.store, use.console);
    EXPECT_EQ(other.fetchEvents().front()->title(), "Changed");
}

TEST(LostFileTest, ChangesThroughAnotherConnectionAreNoLoss) {
    StoreInUse use;
    auto other = Database::open(use.file, eventSchema);
    ASSERT_TRUE(other);
    ASSERT_EQ(other.value().execute("UPDATE events SET color = 5; PRAGMA wal_checkpoint"), std::nullopt);
    EXPECT_EQ(use.save("Changed"), std::nullopt);
    EXPECT_EQ(use.stack.fetchEvents().front()->color(), 5);
}

/// The disk is full for this process: no file may grow beyond that size.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(std::uintmax_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit lower{size, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &lower);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    sighandler_t handler_;
    rlimit before_{};
};

TEST(LostFileTest, ACommitThatFailsKeepsTheChangeForTheNextSave) {
    StoreInUse use;
    {
        const FileSizeLimit full(fs::file_size(use.log));
        EXPECT_TRUE(use.save("Changed"));
        EXPECT_TRUE(use.stack.fetchEvents().front()->hasChanges());
    }
    CoreDataStack other(use.store, use.console);
    EXPECT_EQ(other.fetchEvents().front()->title(), "Saved");
    EXPECT_EQ(use.stack.viewContext().save(), std::nullopt);
    EXPECT_EQ(other.fetchEvents().front()->title(), "Changed");
}

} // namespace
} // namespace tessivo::sqlite
