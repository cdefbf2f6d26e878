#pragma once

#include "Ports/Error.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace tessivo::sqlite {

/// What makes a database file one of the program's own.
struct Schema {
    int applicationId = 0; ///< one number per kind of file, never zero
    int version = 0;       ///< of the tables, from 1 on
    const char* sql = "";  ///< makes all tables of a new file

    /// Counts the rows that break the tables' CHECK limits, which SQLite overlooks in a file that it opens
    /// for reading; null where there are no such limits.
    const char* countOfBrokenRows = nullptr;
};

enum class Step { Row, Done, Failed };

/// A prepared statement: bind (parameters count from 1), step, read columns (they count from 0), reset.
/// Movable; must not outlive its database.
class Statement final {
public:
    Statement() = default;
    explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    void bindNull(int parameter);
    void bindInteger(int parameter, std::int64_t value);
    void bindReal(int parameter, double value);
    void bindText(int parameter, std::string_view value);
    void bindOptionalText(int parameter, const std::optional<std::string>& value);
    void bindBlob(int parameter, std::span<const std::uint8_t> value);

    /// Goes on to the next row; `Failed` leaves the reason in `error`.
    [[nodiscard]] Step step();

    /// Steps to the end and resets, for statements that give no rows.
    [[nodiscard]] Outcome run();

    /// Makes the statement ready to be run anew and lets go of its bindings and its read lock.
    void reset();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;
    /// These are valid until the next `step` or `reset`, and empty for NULL.
    [[nodiscard]] std::optional<std::string_view> optionalText(int column) const;
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] std::span<const std::uint8_t> blob(int column) const;

    [[nodiscard]] Error error() const;

private:
    sqlite3_stmt* statement_ = nullptr;
};

/// Resets a statement at the end of a scope.
class ResetOnExit final {
public:
    explicit ResetOnExit(Statement& statement) : statement_(statement) {}
    ResetOnExit(const ResetOnExit&) = delete;
    ResetOnExit& operator=(const ResetOnExit&) = delete;
    ~ResetOnExit() { statement_.reset(); }

private:
    Statement& statement_;
};

/// A connection to one database file. One thread at a time; several connections, of several processes too,
/// may share a file. Every failure is an `Error` of the domain "SQLite" with SQLite's result code.
class Database final {
public:
    /// Opens `file`, and makes it (mode 0600) and its missing folders (mode 0700) where there is none. A
    /// commit is on disk when it returns; a file locked by another is waited for, two seconds long.
    ///
    /// A file that is damaged, of another program or of another version, or that cannot be written, is
    /// refused and left byte for byte as it is, with no file put beside it.
    [[nodiscard]] static Result<Database> open(const std::filesystem::path& file, const Schema& schema);

    Database(Database&& other) noexcept;
    Database& operator=(Database&& other) noexcept;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    /// Runs statements that give no rows.
    [[nodiscard]] Outcome execute(const char* sql);

    [[nodiscard]] Result<Statement> prepare(std::string_view sql);

    [[nodiscard]] std::int64_t lastInsertedKey() const;

    /// The rows that the last insert, update or delete touched.
    [[nodiscard]] int changes() const;

private:
    explicit Database(sqlite3* connection) : connection_(connection) {}

    sqlite3* connection_ = nullptr;
};

/// All or nothing: what is not committed at the end of the scope is rolled back.
class Transaction final {
public:
    /// Takes the write lock at once, so that what is read inside still holds when it is written.
    [[nodiscard]] static Result<Transaction> begin(Database& database);

    Transaction(Transaction&& other) noexcept;
    Transaction& operator=(Transaction&&) = delete;
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    /// On failure nothing of the transaction is kept.
    [[nodiscard]] Outcome commit();

private:
    explicit Transaction(Database& database) : database_(&database) {}

    Database* database_;
};

} // namespace tessivo::sqlite
