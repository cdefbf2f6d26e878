#include "sqlite/OpenDatabase.h"

#include "sqlite/Database.h"
#include "sqlite/DatabaseFile.h"

#include <sqlite3.h>

#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

namespace tessivo::sqlite {
namespace {

constexpr int busyTimeoutInMilliseconds = 2000;
constexpr const char* countOfTables = "SELECT count(*) FROM sqlite_schema";

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

Error failure(int code, std::string description) {
    return {"SQLite", code, std::move(description)};
}

Error inFile(const std::filesystem::path& file, Error error) {
    error.description = "\"" + file.string() + "\": " + error.description;
    return error;
}

std::filesystem::path logOf(const std::filesystem::path& file) {
    return file.string() + "-wal";
}

std::filesystem::path journalOf(const std::filesystem::path& file) {
    return file.string() + "-journal";
}

/// The address of the file, with the promise that nobody writes it: SQLite then reads it without locks and
/// without files beside it.
std::string immutableAddress(const std::filesystem::path& file) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address = "file:";
    for (const char character : std::filesystem::absolute(file).string()) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '?' || character == '#' || character == '%') {
            address += '%';
            address += digits[byte >> 4];
            address += digits[byte & 0x0F];
        } else {
            address += character;
        }
    }
    return address + "?mode=ro&immutable=1";
}

Result<Connection> connect(const std::string& address, int flags) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(address.c_str(), &opened, flags, nullptr);
    Connection connection(opened);
    if (code != SQLITE_OK)
        return opened == nullptr ? failure(code, sqlite3_errstr(code)) : lastError(opened);
    sqlite3_busy_timeout(opened, busyTimeoutInMilliseconds);
    return connection;
}

Outcome execute(sqlite3* connection, const char* sql) {
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        return lastError(connection);
    return std::nullopt;
}

/// The first column of the first row.
Result<std::string> ask(sqlite3* connection, const char* sql) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection, sql, -1, &prepared, nullptr) != SQLITE_OK)
        return lastError(connection);
    Statement statement(prepared);
    if (statement.step() != Step::Row)
        return statement.error();
    return std::string(statement.text(0));
}

Outcome expectWhole(sqlite3* connection, const Schema& schema) {
    const auto answer = ask(connection, "PRAGMA quick_check(1)");
    if (!answer)
        return answer.error();
    if (answer.value() != "ok")
        return failure(SQLITE_CORRUPT, "the file is damaged: " + answer.value());
    if (schema.countOfBrokenRows == nullptr)
        return std::nullopt;
    const auto broken = ask(connection, schema.countOfBrokenRows);
    if (!broken)
        return broken.error();
    if (broken.value() != "0")
        return failure(SQLITE_CORRUPT,
                       "the file is damaged: values beyond their limits in " + broken.value() + " rows");
    return std::nullopt;
}

Outcome expectOwn(sqlite3* connection, const Schema& schema) {
    const auto application = ask(connection, "PRAGMA application_id");
    if (!application)
        return application.error();
    const auto version = ask(connection, "PRAGMA user_version");
    if (!version)
        return version.error();
    if (application.value() != std::to_string(schema.applicationId))
        return failure(SQLITE_NOTADB, "the file does not belong to this program");
    if (version.value() != std::to_string(schema.version))
        return failure(SQLITE_MISMATCH, "the file is of version " + version.value() +
                                            ", this program reads version " + std::to_string(schema.version));
    return std::nullopt;
}

/// Whose the file is by its first bytes alone. A checkpoint that was cut short leaves a file which SQLite
/// opens only together with its log.
Outcome expectMark(const std::filesystem::path& file, const Schema& schema) {
    constexpr std::size_t markOffset = 68; // of the file format; the most significant byte comes first
    std::array<char, markOffset + 4> head{};
    std::ifstream(file, std::ios::binary).read(head.data(), head.size());
    std::uint32_t mark = 0;
    for (std::size_t index = markOffset; index < head.size(); ++index)
        mark = mark << 8 | static_cast<unsigned char>(head[index]);
    if (mark != static_cast<std::uint32_t>(schema.applicationId))
        return failure(SQLITE_NOTADB, "the file does not belong to this program");
    return std::nullopt;
}

/// Looks at a file that is not known to be ours, without leaving a trace.
Outcome examine(const std::filesystem::path& file, const Schema& schema) {
    if (sizeOf(logOf(file)) > 0)
        return expectMark(file, schema);
    auto connection = connect(immutableAddress(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    if (!connection)
        return connection.error();
    if (auto error = expectOwn(connection.value().get(), schema))
        return error;
    return expectWhole(connection.value().get(), schema);
}

/// A folder for copies, which goes with the object.
class ScratchFolder final {
public:
    ScratchFolder() {
        std::error_code ignored;
        path_ = std::filesystem::temp_directory_path(ignored) / "tessivo-XXXXXX";
        if (::mkdtemp(path_.data()) == nullptr)
            path_.clear();
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        if (!path_.empty())
            std::filesystem::remove_all(path_, ignored);
    }

    /// Empty where no folder could be made.
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// Rolls a half-written transaction back on a copy, to see whether the file is ours at all. A file that was
/// still being made ends up empty, which is fine.
Outcome examineRolledBack(const std::filesystem::path& file, const Schema& schema) {
    const ScratchFolder scratch;
    const std::filesystem::path copy = std::filesystem::path(scratch.path()) / "copy";
    std::error_code error;
    if (!scratch.path().empty())
        std::filesystem::copy_file(file, copy, error);
    if (!error && !scratch.path().empty())
        std::filesystem::copy_file(journalOf(file), journalOf(copy), error);
    if (error || scratch.path().empty())
        return failure(SQLITE_CANTOPEN, "an interrupted change cannot be examined: " + error.message());
    auto connection = connect(copy.string(), SQLITE_OPEN_READWRITE);
    if (!connection)
        return connection.error();
    if (auto refusal = execute(connection.value().get(), "PRAGMA synchronous=OFF"))
        return refusal;
    if (const auto tables = ask(connection.value().get(), countOfTables); !tables)
        return tables.error();
    if (sizeOf(copy) == 0)
        return std::nullopt;
    if (auto refusal = expectOwn(connection.value().get(), schema))
        return refusal;
    return expectWhole(connection.value().get(), schema);
}

/// Undoes the transaction that a killed program, or a loss of power, left half written.
Outcome rollBack(const std::filesystem::path& file, const Schema& schema) {
    if (auto error = examineRolledBack(file, schema))
        return error;
    auto connection = connect(file.string(), SQLITE_OPEN_READWRITE);
    if (!connection)
        return connection.error();
    // SQLite rolls back at the first read.
    const auto tables = ask(connection.value().get(), countOfTables);
    return tables ? std::nullopt : Outcome(tables.error());
}

/// Takes up what a killed program left beside the file, if the whole is sound: else both stay as they are.
Outcome recover(sqlite3* connection, const Schema& schema) {
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (auto error = expectOwn(connection, schema))
        return error;
    if (auto error = expectWhole(connection, schema))
        return error;
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    // The next change begins the log anew: it does not grow with each run that is killed.
    return execute(connection, "PRAGMA wal_checkpoint(PASSIVE)");
}

/// The content of a new file: empty tables, the marks that say whose it is, and the write-ahead log on.
Result<std::string> newContent(const Schema& schema) {
    auto connection = connect(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (!connection)
        return connection.error();
    const std::string marks = "PRAGMA application_id=" + std::to_string(schema.applicationId) +
                              ";PRAGMA user_version=" + std::to_string(schema.version);
    for (const char* sql : {schema.sql, marks.c_str()}) {
        if (auto error = execute(connection.value().get(), sql))
            return *error;
    }
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> image(
        sqlite3_serialize(connection.value().get(), "main", &size, 0), &sqlite3_free);
    if (!image)
        return failure(SQLITE_NOMEM, sqlite3_errstr(SQLITE_NOMEM));
    std::string content(reinterpret_cast<const char*>(image.get()), static_cast<std::size_t>(size));
    // The two version numbers of the file format; 2 stands for the write-ahead log.
    constexpr std::size_t writeVersion = 18;
    constexpr std::size_t readVersion = 19;
    content[writeVersion] = content[readVersion] = 2;
    return content;
}

/// The file comes into being whole, so that a kill leaves either none or a good one.
Outcome makeNew(const std::filesystem::path& file, const Schema& schema) {
    const auto content = newContent(schema);
    if (!content)
        return content.error();
    // What lies beside a file that is gone would be played into the new one.
    std::error_code ignored;
    std::filesystem::remove(journalOf(file), ignored);
    if (sizeOf(logOf(file)) > 0) {
        if (auto error = setAside(logOf(file)))
            return error;
    }
    return publish(file, content.value());
}

Outcome prepareForUse(sqlite3* connection, const Schema& schema) {
    if (auto error = execute(connection, "PRAGMA synchronous=FULL"))
        return error;
    if (auto error = expectOwn(connection, schema))
        return error;
    return execute(connection, "PRAGMA journal_mode=WAL");
}

Result<Connection> openExamined(const std::filesystem::path& file, const Schema& schema) {
    if (auto error = expectWritable(file))
        return *error;
    if (sizeOf(file) > 0 && sizeOf(journalOf(file)) > 0) {
        if (auto error = rollBack(file, schema))
            return inFile(file, *error);
    }
    if (sizeOf(file) == 0) {
        if (auto error = makeNew(file, schema))
            return *error;
    }
    if (auto error = examine(file, schema))
        return inFile(file, *error);
    const bool recovering = sizeOf(logOf(file)) > 0;
    auto connection = connect(file.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    if (!connection)
        return inFile(file, connection.error());
    if (recovering) {
        if (auto error = recover(connection.value().get(), schema))
            return inFile(file, *error);
    }
    if (auto error = prepareForUse(connection.value().get(), schema))
        return inFile(file, *error);
    return connection;
}

} // namespace

Error lastError(sqlite3* connection) {
    return failure(sqlite3_errcode(connection), sqlite3_errmsg(connection));
}

Result<sqlite3*> openDatabase(const std::filesystem::path& file, const Schema& schema) {
    auto connection = openExamined(file, schema);
    if (!connection)
        return connection.error();
    return connection.value().release();
}

} // namespace tessivo::sqlite
