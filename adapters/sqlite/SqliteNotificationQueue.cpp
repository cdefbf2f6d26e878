#include "sqlite/SqliteNotificationQueue.h"

#include "Ports/Console.h"
#include "sqlite/Database.h"
#include "sqlite/QueueRows.h"
#include "sqlite/SalvagedQueue.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <string_view>
#include <system_error>
#include <utility>

namespace tessivo::sqlite {
namespace {

constexpr int ledgerLength = 1000;

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
        const auto rows = statement(selectRequests);
        if (!rows)
            return rows.error();
        const ResetOnExit reset(*rows.value());
        QueuedRequests requests;
        for (;;) {
            const auto step = rows.value()->step();
            if (step == Step::Failed)
                return rows.value()->error();
            if (step == Step::Done)
                break;
            requests.push_back(readRequest(*rows.value()));
        }
        pending_ = std::make_shared<const QueuedRequests>(std::move(requests));
        pendingVersion_ = version.value();
        return pending_;
    }

    Outcome add(const NotificationRequest& request) {
        return write(insertRequest, [&](Statement& row) { bindRequest(row, request); });
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

    Result<std::vector<std::string>> shownIn(const std::string& token) {
        const auto rows =
            statement("SELECT identifier FROM ledger WHERE token = ? AND token <> '' ORDER BY sequence");
        if (!rows)
            return rows.error();
        const ResetOnExit reset(*rows.value());
        rows.value()->bindText(1, std::string_view(token));
        std::vector<std::string> identifiers;
        while (rows.value()->step() == Step::Row)
            identifiers.emplace_back(rows.value()->text(0));
        return identifiers;
    }

    /// Takes over what was saved of a damaged file, and notes that the rest may be missing.
    Outcome takeOver(const SalvagedQueue& salvaged) {
        return inTransaction([&]() -> Outcome {
            for (const auto& queued : salvaged.requests) {
                if (auto error = write(insertRequest, [&](Statement& row) {
                        bindRequest(row, queued.request, queued.sequence);
                    }))
                    return error;
            }
            if (auto error = setAuthorization(salvaged.authorization))
                return error;
            return database_.execute("CREATE TABLE IF NOT EXISTS loss (only INTEGER PRIMARY KEY)");
        });
    }

    // The table is there only as long as there is a loss to make good.
    Result<bool> hasLoss() {
        const auto tables = number("SELECT count(*) FROM sqlite_schema WHERE name = 'loss'");
        if (!tables)
            return tables.error();
        return tables.value() != 0;
    }

    Outcome clearLoss() { return database_.execute("DROP TABLE IF EXISTS loss"); }

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
        const auto row = statement(sql);
        if (!row)
            return row.error();
        const ResetOnExit reset(*row.value());
        if (row.value()->step() != Step::Row)
            return row.value()->error();
        return row.value()->integer(0);
    }

    template <class Bind>
    Outcome write(const char* sql, Bind bind) {
        pending_.reset();
        const auto row = statement(sql);
        if (!row)
            return row.error();
        bind(*row.value());
        return row.value()->run();
    }

    /// Prepared at its first use. `sql` is a literal.
    Result<Statement*> statement(const char* sql) {
        if (const auto found = statements_.find(sql); found != statements_.end())
            return &found->second;
        auto prepared = database_.prepare(sql);
        if (!prepared)
            return prepared.error();
        return &statements_.emplace(sql, std::move(prepared.value())).first->second;
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
    std::map<std::string_view, Statement> statements_;
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

std::vector<std::string> SqliteNotificationQueue::shownIn(const std::string& token) {
    auto shown = withSession([&](Session& session) { return session.shownIn(token); });
    return shown ? std::move(shown.value()) : std::vector<std::string>();
}

Result<AuthorizationStatus> SqliteNotificationQueue::authorization() {
    return withSession([](Session& session) { return session.authorization(); });
}

Outcome SqliteNotificationQueue::setAuthorization(AuthorizationStatus status) {
    return withSession([&](Session& session) { return session.setAuthorization(status); });
}

Result<bool> SqliteNotificationQueue::hasLoss() {
    return withSession([](Session& session) { return session.hasLoss(); });
}

Outcome SqliteNotificationQueue::clearLoss() {
    return withSession([](Session& session) { return session.clearLoss(); });
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
    std::error_code ignored; // the database reports what cannot be created or locked here
    const auto folder = file_.parent_path();
    if (std::filesystem::create_directories(folder, ignored))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    const OpeningLock lock(folder);
    // A sound file may look damaged for the moment in which another process writes it.
    constexpr int attempts = 3;
    for (int attempt = 1;; ++attempt) {
        auto database = Database::open(file_, queueSchema);
        if (database) {
            session_ = std::make_unique<Session>(std::move(database.value()), file_);
            return {};
        }
        if (!isDamage(database.error()))
            return database.error();
        if (attempt == attempts)
            return replace(database.error());
    }
}

Outcome SqliteNotificationQueue::replace(const Error& damage) {
    const auto aside = setAside();
    if (!aside)
        return aside.error();
    const auto salvaged = salvageQueue(aside.value());
    console_.print("The queue of reminders is damaged (" + damage.description + "). It was set aside as \"" +
                   aside.value().string() + "\", and a new one was begun with the " +
                   std::to_string(salvaged.requests.size()) + " reminders that can be read.");
    auto database = Database::open(file_, queueSchema);
    if (!database)
        return database.error();
    session_ = std::make_unique<Session>(std::move(database.value()), file_);
    return session_->takeOver(salvaged);
}

Result<std::filesystem::path> SqliteNotificationQueue::setAside() const {
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
    return aside;
}

} // namespace tessivo::sqlite
