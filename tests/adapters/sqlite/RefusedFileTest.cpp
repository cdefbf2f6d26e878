#include "Event/CoreDataStack.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <unistd.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace tessivo::sqlite {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace fs = std::filesystem;

/// Drops the rights of root for a while, so that file modes count for tests that run as root, too.
class Unprivileged final {
public:
    Unprivileged() { wasRoot_ = ::geteuid() == 0 && ::seteuid(nobody) == 0; }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
    ~Unprivileged() {
        if (wasRoot_ && ::seteuid(0) != 0)
            std::abort();
    }

    static constexpr uid_t nobody = 65534;

private:
    bool wasRoot_ = false;
};

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const fs::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

/// All files of a folder with what is in them.
std::map<std::string, std::string> snapshot(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files[entry.path().filename()] = entry.is_regular_file() ? contentOf(entry) : "(folder)";
    return files;
}

class RefusedFileTest : public testing::Test {
protected:
    /// A store with some hundred rows, closed.
    void makeStore() {
        SqliteEventStore store(file);
        CoreDataStack stack(store, console);
        for (int row = 0; row < 100; ++row)
            stack.addEvent(plainEvent("Event " + std::to_string(row) + std::string(100, '.')));
    }

    /// Changes a closed store behind the program's back.
    void alter(const char* sql) {
        ::sqlite3* connection = nullptr;
        ASSERT_EQ(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(connection);
        sqlite3_close(connection);
    }

    /// The text with which the program stops at its first use of the store; empty if it does not stop.
    std::string stopText() {
        SqliteEventStore store(file);
        CoreDataStack stack(store, console);
        try {
            (void)stack.fetchEvents();
        } catch (const fakes::ProgramStopped& stopped) {
            return stopped.what();
        }
        return "";
    }

    void expectRefusal(const std::string& reason) {
        const auto before = snapshot(folder.path());
        EXPECT_THAT(stopText(), AllOf(StartsWith("Unresolved error "), HasSubstr(reason),
                                      HasSubstr("\"file\": \"" + file.string() + "\"")));
        EXPECT_EQ(snapshot(folder.path()), before);
    }

    TemporaryFolder folder;
    fs::path file = folder / "events.db";
    fakes::RecordingConsole console;
};

TEST_F(RefusedFileTest, AFileThatIsNoSoundStoreStopsTheProgramAndStaysAsItIs) {
    struct {
        const char* name;
        std::function<void()> spoil;
        const char* reason;
    } const cases[] = {
        {"text", [&] { write(file, "Dear diary, today I did not use a database at all."); },
         "not a database"},
        {"one byte", [&] { write(file, "x"); }, "not belong to this program"},
        {"header alone", [&] { write(file, contentOf(file).substr(0, 100)); }, "malformed"},
        {"first half", [&] { write(file, contentOf(file).substr(0, contentOf(file).size() / 2)); },
         "malformed"},
        {"a page overwritten",
         [&] {
             auto content = contentOf(file);
             write(file, content.replace(3 * 4096, 4096, std::string(4096, '#')));
         },
         "damaged"},
        {"a newer version", [&] { alter("PRAGMA user_version=2"); },
         "of version 2, this program reads version 1"},
        {"no version", [&] { alter("PRAGMA user_version=0"); }, "of version 0, this program reads version 1"},
        {"another program's", [&] { alter("PRAGMA application_id=7"); }, "not belong to this program"},
        {"a row beyond its limits",
         [&] { alter("PRAGMA ignore_check_constraints=1; UPDATE events SET color=70000 WHERE key=5"); },
         "damaged"},
        {"a log that is none of its own",
         [&] {
             alter("PRAGMA application_id=7");
             write(file.string() + "-wal", std::string(500, 'w'));
         },
         "not belong to this program"},
    };
    for (const auto& [name, spoil, reason] : cases) {
        SCOPED_TRACE(name);
        fs::remove(file);
        makeStore();
        spoil();
        expectRefusal(reason);
    }
}

TEST_F(RefusedFileTest, ADamagedFileKeepsTheLogThatAKilledProgramLeft) {
    makeStore();
    {
        SqliteEventStore store(file);
        CoreDataStack stack(store, console);
        stack.addEvent(plainEvent());
        fs::create_directory(folder / "left");
        for (const char* suffix : {"", "-wal"})
            fs::copy_file(file.string() + suffix, (folder / "left" / "events.db").string() + suffix);
    }
    file = folder / "left" / "events.db";
    auto content = contentOf(file);
    write(file, content.replace(4 * 4096, 4096, std::string(4096, '#')));
    const auto log = contentOf(file.string() + "-wal");
    const auto damaged = contentOf(file);
    ASSERT_FALSE(log.empty());
    EXPECT_THAT(stopText(), HasSubstr("damaged"));
    EXPECT_EQ(contentOf(file), damaged);
    EXPECT_EQ(contentOf(file.string() + "-wal"), log);
}

TEST_F(RefusedFileTest, PlacesThatCannotBeWrittenStopTheProgram) {
    makeStore();
    ASSERT_EQ(::chown(folder.path().c_str(), Unprivileged::nobody, Unprivileged::nobody), 0);
    ASSERT_EQ(::chown(file.c_str(), Unprivileged::nobody, Unprivileged::nobody), 0);
    const auto whole = snapshot(folder.path());
    struct {
        const char* name;
        fs::perms folder;
        fs::perms file;
        fs::path opened;
        const char* reason;
    } const cases[] = {
        {"read-only file", fs::perms(0700), fs::perms(0400), file, "Cannot write the file"},
        {"unreadable file", fs::perms(0700), fs::perms(0000), file, "Cannot write the file"},
        {"read-only folder", fs::perms(0500), fs::perms(0600), file, "Cannot write to the folder"},
        {"read-only folder, no file", fs::perms(0500), fs::perms(0600), folder / "new.db",
         "Cannot write to the folder"},
        {"closed folder", fs::perms(0000), fs::perms(0600), file, "Cannot write to the folder"},
        {"folder that cannot be made", fs::perms(0500), fs::perms(0600), folder.path() / "in" / "new.db",
         "Cannot make the folder"},
        {"folder that is a file", fs::perms(0700), fs::perms(0600), file / "new.db",
         "Cannot make the folder"},
    };
    const fs::path store = file;
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        file = one.opened;
        fs::permissions(store, one.file);
        fs::permissions(folder.path(), one.folder);
        std::string text;
        {
            const Unprivileged user;
            text = stopText();
        }
        fs::permissions(folder.path(), fs::perms(0700));
        fs::permissions(store, fs::perms(0600));
        EXPECT_THAT(text, AllOf(StartsWith("Unresolved error "), HasSubstr(one.reason)));
        EXPECT_EQ(snapshot(folder.path()), whole);
    }
}

TEST_F(RefusedFileTest, AFolderInThePlaceOfTheFileStopsTheProgram) {
    fs::create_directory(file);
    expectRefusal("is no file");
}

TEST_F(RefusedFileTest, AnEmptyFileIsANewStore) {
    write(file, "");
    EXPECT_EQ(stopText(), "");
    EXPECT_THAT(contentOf(file), StartsWith("SQLite format 3"));
}

TEST_F(RefusedFileTest, NewFilesAndFoldersAreForTheirOwnerOnly) {
    file = folder.path() / "data home" / "100% #1?" / "events.db";
    makeStore();
    EXPECT_EQ(stopText(), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(file.parent_path().parent_path()).permissions(), fs::perms(0700));
}

TEST_F(RefusedFileTest, AStoreLockedByAnotherProcessFailsTheSaveAndKeepsTheChange) {
    makeStore();
    SqliteEventStore store(file);
    CoreDataStack stack(store, console);
    const auto event = stack.fetchEvents().front();
    auto other = Database::open(file, eventSchema);
    ASSERT_TRUE(other);
    event->setTitle("Changed");
    {
        const auto locking = Transaction::begin(other.value());
        ASSERT_TRUE(locking);
        const auto error = stack.viewContext().save();
        ASSERT_TRUE(error);
        EXPECT_THAT(error->description, HasSubstr("locked"));
    }
    EXPECT_TRUE(event->hasChanges());
    EXPECT_EQ(stack.viewContext().save(), std::nullopt);
    EXPECT_FALSE(event->hasChanges());
}

TEST_F(RefusedFileTest, SettingsThatCannotBeReadAreToldAndLastForTheRun) {
    write(file, "EventSize=1");
    SqliteSavedSettings settings(file, console);
    ASSERT_THAT(console.lines(), ElementsAre(AllOf(StartsWith("The saved settings cannot be used: "),
                                                   HasSubstr(file.string()), HasSubstr("not a database"))));
    settings.setInteger("EventSize", 2);
    EXPECT_EQ(settings.integer("EventSize"), 2);
    EXPECT_EQ(contentOf(file), "EventSize=1");
}

TEST_F(RefusedFileTest, ASettingThatCannotBeWrittenIsToldAndHoldsForTheRun) {
    SqliteSavedSettings settings(file, console);
    settings.setInteger("EventSize", 1);
    alter("CREATE TRIGGER full BEFORE UPDATE ON settings BEGIN SELECT RAISE(FAIL, 'no space left'); END");
    settings.setInteger("EventSize", 2);
    EXPECT_THAT(console.lines(), ElementsAre("The setting \"EventSize\" cannot be saved: no space left"));
    EXPECT_EQ(settings.integer("EventSize"), 2);
}

} // namespace
} // namespace tessivo::sqlite
