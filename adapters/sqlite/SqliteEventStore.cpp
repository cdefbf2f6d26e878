#include "sqlite/SqliteEventStore.h"

#include "sqlite/Database.h"
#include "sqlite/DatabaseFile.h"
#include "sqlite/EventColumns.h"

#include <sqlite3.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tessivo::sqlite {
namespace {

/// "a, b, c" with each column put through `item`.
template <class Item>
std::string listed(const EventAttributes& attributes, Item item) {
    std::string list;
    for (std::size_t index = 0; index < eventAttributeCount; ++index) {
        if (attributes.test(index))
            list += (list.empty() ? "" : ", ") + item(std::string(eventColumns[index]));
    }
    return list;
}

std::string columnList() {
    return listed(EventAttributes().set(), [](const std::string& column) { return column; });
}

int bindAttributes(Statement& statement, const EventAttributes& attributes, const EventRecord& values) {
    int parameter = 0;
    for (std::size_t index = 0; index < eventAttributeCount; ++index) {
        if (attributes.test(index))
            bindAttribute(statement, ++parameter, static_cast<EventAttribute>(index), values);
    }
    return parameter;
}

} // namespace

/// The open file and its statements, each prepared at its first use.
class SqliteEventStore::OpenFile final {
public:
    OpenFile(std::filesystem::path file, Database database, const DateLocale& dateLocale)
        : file_(std::move(file)), database_(std::move(database)), dateLocale_(dateLocale) {
        rememberFile();
    }

    Outcome fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) {
        const std::string select = "SELECT key, " + columnList() + " FROM events";
        auto prepared = statement(select + (id ? " WHERE id = ? ORDER BY key" : " ORDER BY key"));
        if (!prepared)
            return prepared.error();
        Statement& row = *prepared.value();
        const ResetOnExit reset(row);
        if (id)
            row.bindBlob(1, id->bytes);
        while (true) {
            switch (row.step()) {
            case Step::Row:
                if (EventRecord* record = rows.receive(row.integer(0)))
                    readAttributes(row, 1, *record);
                break;
            case Step::Done:
                return std::nullopt;
            case Step::Failed:
                return row.error();
            }
        }
    }

    Outcome save(std::span<EventChange> changes) {
        auto transaction = Transaction::begin(database_);
        if (!transaction)
            return transaction.error();
        if (auto error = expectSameFile())
            return error;
        std::vector<RowKey> keys;
        for (const EventChange& change : changes) {
            if (auto error = write(change))
                return error;
            const bool inserts = change.kind == EventChange::Kind::Insert;
            if (inserts)
                keys.push_back(database_.lastInsertedKey());
            if (auto error = noteLocale(change, inserts ? keys.back() : change.key))
                return error;
        }
        if (auto error = transaction.value().commit())
            return error;
        ++saves_;
        rememberFile();
        auto key = keys.begin();
        for (EventChange& change : changes) {
            if (change.kind == EventChange::Kind::Insert)
                change.key = *key++;
        }
        return std::nullopt;
    }

    std::optional<StoreState> state() {
        const auto foreign = foreignChanges();
        return foreign ? std::optional(StoreState{saves_, *foreign}) : std::nullopt;
    }

private:
    Outcome write(const EventChange& change) {
        auto prepared = statement(textOf(change));
        if (!prepared)
            return prepared.error();
        Statement& writing = *prepared.value();
        int parameter = 0;
        if (change.kind == EventChange::Kind::Insert)
            bindAttributes(writing, EventAttributes().set(), *change.values);
        else if (change.kind == EventChange::Kind::Update)
            parameter = bindAttributes(writing, change.attributes, *change.values);
        if (change.kind != EventChange::Kind::Insert)
            writing.bindInteger(parameter + 1, change.key);
        return writing.run();
    }

    Outcome noteLocale(const EventChange& change, RowKey event) {
        static const auto dates = [] {
            EventAttributes attributes;
            attributes.set(static_cast<std::size_t>(EventAttribute::dateEvent));
            return attributes.set(static_cast<std::size_t>(EventAttribute::timeEvent));
        }();
        const bool writesDates =
            change.kind == EventChange::Kind::Insert ||
            (change.kind == EventChange::Kind::Update && (change.attributes & dates).any());
        return dateLocale_ && writesDates ? noteDateLocale(database_, event, dateLocale_()) : std::nullopt;
    }

    static std::string textOf(const EventChange& change) {
        switch (change.kind) {
        case EventChange::Kind::Insert:
            return "INSERT INTO events(" + columnList() + ") VALUES(" +
                   listed(EventAttributes().set(), [](const std::string&) { return std::string("?"); }) + ")";
        case EventChange::Kind::Update:
            return "UPDATE events SET " +
                   listed(change.attributes, [](const std::string& column) { return column + " = ?"; }) +
                   " WHERE key = ?";
        case EventChange::Kind::Delete:
            break;
        }
        return "DELETE FROM events WHERE key = ?";
    }

    Result<Statement*> statement(const std::string& sql) {
        if (const auto known = statements_.find(sql); known != statements_.end())
            return &known->second;
        auto prepared = database_.prepare(sql);
        if (!prepared)
            return prepared.error();
        return &statements_.emplace(sql, std::move(prepared.value())).first->second;
    }

    [[nodiscard]] std::filesystem::path log() const { return file_.string() + "-wal"; }

    /// SQLite goes on writing to a file that has been removed, and writes over one that has been copied into
    /// its place: what it then calls saved is lost.
    Outcome expectSameFile() {
        const auto now = stateOf(file_);
        const auto log = stateOf(this->log());
        if (!now || !known_ || !log || !knownLog_)
            return lost("been removed");
        if (!now->isSameFile(*known_) || !log->isSameFile(*knownLog_))
            return lost("been replaced");
        if (!now->isUntouched(*known_) && foreignChanges() == knownForeignChanges_)
            return lost("been overwritten");
        return std::nullopt;
    }

    void rememberFile() {
        known_ = stateOf(file_);
        knownLog_ = stateOf(log());
        knownForeignChanges_ = foreignChanges();
    }

    /// Rises with each change that came through another SQLite connection, which is welcome.
    std::optional<std::int64_t> foreignChanges() {
        auto prepared = statement("PRAGMA data_version");
        if (!prepared)
            return std::nullopt;
        const ResetOnExit reset(*prepared.value());
        return prepared.value()->step() == Step::Row ? std::optional(prepared.value()->integer(0))
                                                     : std::nullopt;
    }

    [[nodiscard]] Error lost(const char* what) const {
        return {"SQLite", SQLITE_READONLY_DBMOVED,
                "\"" + file_.string() + "\" has " + what +
                    " while Tessivo was running. Nothing more can be saved until Tessivo is started again."};
    }

    std::filesystem::path file_;
    Database database_;
    const DateLocale& dateLocale_;
    std::map<std::string, Statement> statements_; ///< by text
    std::optional<FileState> known_;              ///< as this connection left it
    std::optional<FileState> knownLog_;
    std::optional<std::int64_t> knownForeignChanges_;
    std::int64_t saves_ = 0;
};

SqliteEventStore::SqliteEventStore(std::filesystem::path file, DateLocale dateLocale)
    : file_(std::move(file)), dateLocale_(std::move(dateLocale)) {}

SqliteEventStore::~SqliteEventStore() = default;

std::optional<LoadFailure> SqliteEventStore::load() {
    if (open_)
        return std::nullopt;
    auto database = Database::open(file_, eventSchema);
    if (!database)
        return failure(database.error());
    if (const auto error = database.value().execute(makeDateLocales))
        return failure(*error);
    open_ = std::make_unique<OpenFile>(file_, std::move(database.value()), dateLocale_);
    return std::nullopt;
}

LoadFailure SqliteEventStore::failure(const Error& error) const {
    return {error, {{"code", std::to_string(error.code)}, {"file", file_.string()}}};
}

Outcome SqliteEventStore::fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) {
    if (!open_)
        return Error{"SQLite", SQLITE_MISUSE, "the store is not loaded"};
    return open_->fetch(id, rows);
}

std::optional<StoreState> SqliteEventStore::state() {
    return open_ ? open_->state() : std::nullopt;
}

Outcome SqliteEventStore::save(std::span<EventChange> changes) {
    if (!open_)
        return Error{"SQLite", SQLITE_MISUSE, "the store is not loaded"};
    return open_->save(changes);
}

} // namespace tessivo::sqlite
