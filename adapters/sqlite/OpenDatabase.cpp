#include "sqlite/OpenDatabase.h"

#include "sqlite/Database.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>

namespace tessivo::sqlite {
namespace {

constexpr int busyTimeoutInMilliseconds = 2000;

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

Error failure(int code, std::string description) {
    return {"SQLite", code, std::move(description)};
}

Error systemFailure(const std::string& what, const std::filesystem::path& path) {
    return failure(SQLITE_CANTOPEN, what + " \"" + path.string() + "\": " + std::strerror(errno));
}

Error inFile(const std::filesystem::path& file, Error error) {
    error.description = "\"" + file.string() + "\": " + error.description;
    return error;
}

Outcome makeFolders(const std::filesystem::path& folder) {
    std::error_code ignored;
    if (folder.empty() || std::filesystem::is_directory(folder, ignored))
        return std::nullopt;
    if (auto error = makeFolders(folder.parent_path()))
        return error;
    const bool made = ::mkdir(folder.c_str(), S_IRWXU) == 0;
    if (made || (errno == EEXIST && std::filesystem::is_directory(folder, ignored)))
        return std::nullopt;
    return systemFailure("Cannot make the folder", folder);
}

/// Sees that there is a plain file that can be written, in a folder that can: SQLite by itself would make the
/// file readable for everybody, and would open what it cannot write for reading.
Outcome makeFile(const std::filesystem::path& file) {
    const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
    if (auto error = makeFolders(folder))
        return error;
    if (::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        return systemFailure("Cannot write to the folder", folder);
    const int made = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made >= 0) {
        ::close(made);
        return std::nullopt;
    }
    if (errno != EEXIST)
        return systemFailure("Cannot make the file", file);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored))
        return failure(SQLITE_CANTOPEN, "\"" + file.string() + "\" is no file");
    if (::faccessat(AT_FDCWD, file.c_str(), R_OK | W_OK, AT_EACCESS) != 0)
        return systemFailure("Cannot write the file", file);
    return std::nullopt;
}

std::uintmax_t sizeOf(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    return error ? 0 : size;
}

/// A program that was killed left changes beside the file which belong to it.
bool hasPendingChanges(const std::filesystem::path& file) {
    return sizeOf(file.string() + "-wal") > 0 || sizeOf(file.string() + "-journal") > 0;
}

/// The file as an address that promises SQLite that nobody writes it: it is then read with no lock and no
/// file beside it.
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

/// Looks at a file that is not known to be ours, without leaving a trace.
Outcome examine(const std::filesystem::path& file, const Schema& schema) {
    auto connection = connect(immutableAddress(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    if (!connection)
        return connection.error();
    if (auto error = expectOwn(connection.value().get(), schema))
        return error;
    return hasPendingChanges(file) ? std::nullopt : expectWhole(connection.value().get(), schema);
}

/// Takes up what a killed program left beside the file, if the whole is sound: else both stay as they are.
Outcome recover(sqlite3* connection, const Schema& schema) {
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (auto error = expectWhole(connection, schema))
        return error;
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    return std::nullopt;
}

/// Makes the tables of a new file in one step, before the write-ahead log is on: so the file itself says
/// whose it is from its first byte.
Outcome makeTables(sqlite3* connection, const Schema& schema) {
    if (auto error = execute(connection, "BEGIN IMMEDIATE"))
        return error;
    const auto tables = ask(connection, "SELECT count(*) FROM sqlite_schema");
    if (!tables)
        return tables.error();
    if (tables.value() != "0") // another process was quicker
        return execute(connection, "COMMIT");
    const std::string marks = "PRAGMA application_id=" + std::to_string(schema.applicationId) +
                              ";PRAGMA user_version=" + std::to_string(schema.version);
    if (auto error = execute(connection, schema.sql))
        return error;
    if (auto error = execute(connection, marks.c_str()))
        return error;
    return execute(connection, "COMMIT");
}

Outcome prepareForUse(sqlite3* connection, const Schema& schema) {
    if (auto error = execute(connection, "PRAGMA synchronous=FULL"))
        return error;
    const auto tables = ask(connection, "SELECT count(*) FROM sqlite_schema");
    if (!tables)
        return tables.error();
    if (tables.value() == "0") {
        if (auto error = makeTables(connection, schema))
            return error;
    }
    if (auto error = expectOwn(connection, schema))
        return error;
    return execute(connection, "PRAGMA journal_mode=WAL");
}

Result<Connection> openExamined(const std::filesystem::path& file, const Schema& schema) {
    if (auto error = makeFile(file))
        return *error;
    if (sizeOf(file) > 0) {
        if (auto error = examine(file, schema))
            return inFile(file, *error);
    }
    const bool recovering = hasPendingChanges(file);
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
