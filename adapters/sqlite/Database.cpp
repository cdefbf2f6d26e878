#include "sqlite/Database.h"

#include "sqlite/OpenDatabase.h"

#include <sqlite3.h>

#include <utility>

namespace tessivo::sqlite {

Result<Database> Database::open(const std::filesystem::path& file, const Schema& schema) {
    auto connection = openDatabase(file, schema);
    if (!connection)
        return connection.error();
    return Database(connection.value());
}

Database::Database(Database&& other) noexcept : connection_(std::exchange(other.connection_, nullptr)) {}

Database& Database::operator=(Database&& other) noexcept {
    std::swap(connection_, other.connection_);
    return *this;
}

Database::~Database() {
    sqlite3_close_v2(connection_);
}

Outcome Database::execute(const char* sql) {
    if (sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        return lastError(connection_);
    return std::nullopt;
}

Result<Statement> Database::prepare(std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    const auto size = static_cast<int>(sql.size());
    if (sqlite3_prepare_v3(connection_, sql.data(), size, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        return lastError(connection_);
    return Statement(statement);
}

std::int64_t Database::lastInsertedKey() const {
    return sqlite3_last_insert_rowid(connection_);
}

int Database::changes() const {
    return sqlite3_changes(connection_);
}

Result<Transaction> Transaction::begin(Database& database) {
    if (auto error = database.execute("BEGIN IMMEDIATE"))
        return *std::move(error);
    return Transaction(database);
}

Transaction::Transaction(Transaction&& other) noexcept : database_(std::exchange(other.database_, nullptr)) {}

Transaction::~Transaction() {
    // SQLite may have rolled back by itself already; that this then fails is fine.
    if (database_ != nullptr)
        (void)database_->execute("ROLLBACK");
}

Outcome Transaction::commit() {
    auto outcome = database_->execute("COMMIT");
    if (!outcome)
        database_ = nullptr;
    return outcome;
}

} // namespace tessivo::sqlite
