#include "sqlite/SqliteNotificationQueue.h"

#include "Ports/Console.h"
#include "sqlite/Database.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <system_error>
#include <utility>

namespace tessivo::sqlite {
namespace {

constexpr Schema schema{0x54515545, 1, R"(
    CREATE TABLE pending (
        sequence INTEGER PRIMARY KEY AUTOINCREMENT,
        identifier TEXT NOT NULL UNIQUE,
        title TEXT NOT NULL,
        body TEXT NOT NULL,
        sound INTEGER NOT NULL,
        repeats INTEGER NOT NULL,
        year INTEGER, month INTEGER, day INTEGER, hour INTEGER, minute INTEGER, second INTEGER);
    CREATE TABLE ledger (
        sequence INTEGER PRIMARY KEY,
        identifier TEXT NOT NULL,
        token TEXT NOT NULL,
        shown REAL NOT NULL);
    CREATE INDEX ledgerByToken ON ledger (token);
    CREATE TABLE permission (
        only INTEGER PRIMARY KEY CHECK (only = 1),
        status INTEGER NOT NULL);
)"};

constexpr int ledgerLength = 1000;

using Field = std::optional<int> DateComponents::*;
constexpr std::array<Field, 6> fields{&DateComponents::year,   &DateComponents::month,
                                      &DateComponents::day,    &DateComponents::hour,
                                      &DateComponents::minute, &DateComponents::second};
constexpr int firstField = 5; ///< as a column, which count from 0, and as a parameter, which count from 1

/// Another process that opens, or sets aside, a file of the same folder waits until this one is done.
class OpeningLock final {
public:
    explicit OpeningLock(const std::filesystem::path& folder)
        : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (descriptor_ >= 0)
            ::flock(descriptor_, LOCK_EX);
    }
    OpeningLock(const OpeningLock&) = delete;
    OpeningLock& operator=(const OpeningLock&) = delete;
    ~OpeningLock() {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }

private:
    int descriptor_;
};

/// Which file a name stands for; nothing for none.
std::pair<dev_t, ino_t> identityOf(const std::filesystem::path& file) {
    struct stat status {};
    return ::stat(file.c_str(), &status) == 0 ? std::pair(status.st_dev, status.st_ino)
                                              : std::pair<dev_t, ino_t>();
}

bool isDamage(const Error& error) {
    return error.code == SQLITE_CORRUPT || error.code == SQLITE_NOTADB;
}

const Error* errorOf(const Outcome& outcome) {
    return outcome ? &*outcome : nullptr;
}

template <class Value>
const Error* errorOf(const Result<Value>& result) {
    return result ? nullptr : &result.error();
}

QueuedRequest readRequest(const Statement& row) {
    QueuedRequest queued;
    queued.sequence = row.integer(0);
    queued.request.identifier = row.text(1);
    queued.request.content = {std::string(row.text(2)), std::string(row.text(3)), row.integer(4) != 0};
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const int column = firstField + static_cast<int>(index);
        if (!row.isNull(column))
            queued.request.trigger.dateComponents.*fields[index] = static_cast<int>(row.integer(column));
    }
    queued.request.trigger.repeats = row.integer(firstField + static_cast<int>(fields.size())) != 0;
    return queued;
}

void bindRequest(Statement& row, const NotificationRequest& request) {
    row.bindText(1, std::string_view(request.identifier));
    row.bindText(2, std::string_view(request.content.title));
    row.bindText(3, std::string_view(request.content.body));
    row.bindInteger(4, request.content.defaultSound ? 1 : 0);
    for (std::size_t index = 0; index < fields.size(); ++index) {
        if (const auto value = request.trigger.dateComponents.*fields[index])
            row.bindInteger(firstField + static_cast<int>(index), *value);
    }
    row.bindInteger(firstField + static_cast<int>(fields.size()), request.trigger.repeats ? 1 : 0);
}

} // namespace

/// The open file.
class SqliteNotificationQueue::Session final {
public:
    Session(Database database, const std::filesystem::path& file)
        : database_(std::move(database)), identity_(identityOf(file)) {}

    [[nodiscard]] bool isOf(const std::filesystem::path& file) const { return identityOf(file) == identity_; }

    Result<std::shared_ptr<const QueuedRequests>> pending() {
        // Changes whenever another connection has written; what this one writes drops the list itself.
        const auto version = number("PRAGMA data_version");
        if (!version)
            return version.error();
        if (pending_ && version.value() == pendingVersion_)
            return pending_;
        auto row = database_.prepare(
            "SELECT sequence, identifier, title, body, sound, year, month, day, hour, minute, second, repeats"
            " FROM pending ORDER BY sequence");
        if (!row)
            return row.error();
        QueuedRequests requests;
        for (;;) {
            const auto step = row.value().step();
            if (step == Step::Failed)
                return row.value().error();
            if (step == Step::Done)
                break;
            requests.push_back(readRequest(row.value()));
        }
        pending_ = std::make_shared<const QueuedRequests>(std::move(requests));
        pendingVersion_ = version.value();
        return pending_;
    }

    Outcome add(const NotificationRequest& request) {
        return write(
            "INSERT OR REPLACE INTO pending (identifier, title, body, sound, year, month, day, hour, minute,"
            " second, repeats) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            [&](Statement& row) { bindRequest(row, request); });
    }

    Outcome remove(const std::vector<std::string>& identifiers) {
        return inTransaction([&]() -> Outcome {
            for (const auto& identifier : identifiers) {
                if (auto error = write("DELETE FROM pending WHERE identifier = ?", [&](Statement& row) {
                        row.bindText(1, std::string_view(identifier));
                    }))
                    return error;
            }
            return {};
        });
    }

    Outcome retire(const std::vector<std::int64_t>& sequences, const std::string& token, Instant when) {
        return inTransaction([&]() -> Outcome {
            for (const auto sequence : sequences) {
                if (auto error = retire(sequence, token, when))
                    return error;
            }
            return write("DELETE FROM ledger WHERE sequence <= (SELECT max(sequence) FROM ledger) - ?",
                         [](Statement& row) { row.bindInteger(1, ledgerLength); });
        });
    }

    bool wasShown(const std::string& token) {
        auto row = database_.prepare("SELECT 1 FROM ledger WHERE token = ?");
        if (!row || token.empty())
            return false;
        row.value().bindText(1, std::string_view(token));
        return row.value().step() == Step::Row;
    }

    Result<AuthorizationStatus> authorization() {
        const auto status = number("SELECT coalesce((SELECT status FROM permission), 0)");
        if (!status)
            return status.error();
        return static_cast<AuthorizationStatus>(status.value());
    }

    Outcome setAuthorization(AuthorizationStatus status) {
        return write("INSERT OR REPLACE INTO permission (only, status) VALUES (1, ?)",
                     [&](Statement& row) { row.bindInteger(1, static_cast<int>(status)); });
    }

private:
    Outcome retire(std::int64_t sequence, const std::string& token, Instant when) {
        if (auto error = write("INSERT INTO ledger (sequence, identifier, token, shown)"
                               " SELECT sequence, identifier, ?, ? FROM pending WHERE sequence = ?",
                               [&](Statement& row) {
                                   row.bindText(1, std::string_view(token));
                                   row.bindReal(2, secondsSince1970(when));
                                   row.bindInteger(3, sequence);
                               }))
            return error;
        return write("DELETE FROM pending WHERE sequence = ?",
                     [&](Statement& row) { row.bindInteger(1, sequence); });
    }

    Result<std::int64_t> number(const char* sql) {
        auto row = database_.prepare(sql);
        if (!row)
            return row.error();
        if (row.value().step() != Step::Row)
            return row.value().error();
        return row.value().integer(0);
    }

    template <class Bind>
    Outcome write(const char* sql, Bind bind) {
        pending_.reset();
        auto row = database_.prepare(sql);
        if (!row)
            return row.error();
        bind(row.value());
        return row.value().run();
    }

    template <class Changes>
    Outcome inTransaction(Changes changes) {
        auto transaction = Transaction::begin(database_);
        if (!transaction)
            return transaction.error();
        if (auto error = changes())
            return error;
        return transaction.value().commit();
    }

    Database database_;
    std::pair<dev_t, ino_t> identity_;
    std::shared_ptr<const QueuedRequests> pending_; ///< as last read; null when it is out of date
    std::int64_t pendingVersion_ = 0;
};

SqliteNotificationQueue::SqliteNotificationQueue(std::filesystem::path file, Console& console)
    : file_(std::move(file)), console_(console) {}

SqliteNotificationQueue::~SqliteNotificationQueue() = default;

Result<std::shared_ptr<const QueuedRequests>> SqliteNotificationQueue::pending() {
    return withSession([](Session& session) { return session.pending(); });
}

Outcome SqliteNotificationQueue::add(const NotificationRequest& request) {
    return withSession([&](Session& session) { return session.add(request); });
}

Outcome SqliteNotificationQueue::remove(const std::vector<std::string>& identifiers) {
    return withSession([&](Session& session) { return session.remove(identifiers); });
}

Outcome SqliteNotificationQueue::retire(const std::vector<std::int64_t>& sequences, const std::string& token,
                                        Instant when) {
    return withSession([&](Session& session) { return session.retire(sequences, token, when); });
}

bool SqliteNotificationQueue::wasShown(const std::string& token) {
    const auto shown = withSession([&](Session& session) -> Result<bool> { return session.wasShown(token); });
    return shown && shown.value();
}

Result<AuthorizationStatus> SqliteNotificationQueue::authorization() {
    return withSession([](Session& session) { return session.authorization(); });
}

Outcome SqliteNotificationQueue::setAuthorization(AuthorizationStatus status) {
    return withSession([&](Session& session) { return session.setAuthorization(status); });
}

template <class Work>
auto SqliteNotificationQueue::withSession(Work work) -> decltype(work(std::declval<Session&>())) {
    if (!session_ || !session_->isOf(file_)) {
        session_.reset();
        if (auto error = open())
            return *error;
    }
    auto answer = work(*session_);
    if (const auto* error = errorOf(answer); error != nullptr && isDamage(*error))
        session_.reset();
    return answer;
}

Outcome SqliteNotificationQueue::open() {
    std::error_code ignored; // what cannot be made or locked here is told by the database
    const auto folder = file_.parent_path();
    if (std::filesystem::create_directories(folder, ignored))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    const OpeningLock lock(folder);
    // A sound file may look damaged for the moment in which another process writes it.
    constexpr int attempts = 3;
    for (int attempt = 1;; ++attempt) {
        auto database = Database::open(file_, schema);
        if (database) {
            session_ = std::make_unique<Session>(std::move(database.value()), file_);
            return {};
        }
        if (!isDamage(database.error()))
            return database.error();
        if (attempt == attempts) {
            if (auto error = setAside(database.error()))
                return error;
        } else if (attempt > attempts) {
            return database.error();
        }
    }
}

Outcome SqliteNotificationQueue::setAside(const Error& damage) const {
    std::filesystem::path aside;
    for (int number = 1; aside.empty() || exists(aside); ++number)
        aside = file_.string() + ".damaged-" + std::to_string(number);
    for (const char* part : {"-wal", "-shm", ""}) {
        std::error_code error;
        if (std::filesystem::exists(file_.string() + part, error))
            std::filesystem::rename(file_.string() + part, aside.string() + part, error);
        if (error)
            return Error{"SQLite", SQLITE_CANTOPEN,
                         "Cannot set aside \"" + file_.string() + "\": " + error.message()};
    }
    console_.print("The queue of reminders is damaged (" + damage.description + "). It was set aside as \"" +
                   aside.string() + "\", and a new one has been begun.");
    return {};
}

} // namespace tessivo::sqlite
