#include "sqlite/Database.h"

#include <sqlite3.h>

#include <string>
#include <utility>

namespace tessivo::sqlite {

Statement::Statement(Statement&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
    std::swap(statement_, other.statement_);
    return *this;
}

Statement::~Statement() {
    sqlite3_finalize(statement_);
}

void Statement::bindNull(int parameter) {
    sqlite3_bind_null(statement_, parameter);
}

void Statement::bindInteger(int parameter, std::int64_t value) {
    sqlite3_bind_int64(statement_, parameter, value);
}

void Statement::bindReal(int parameter, double value) {
    sqlite3_bind_double(statement_, parameter, value);
}

void Statement::bindText(int parameter, std::string_view value) {
    // A null pointer would bind NULL, which is not the empty text.
    const char* data = value.empty() ? "" : value.data();
    sqlite3_bind_text64(statement_, parameter, data, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Statement::bindOptionalText(int parameter, const std::optional<std::string>& value) {
    if (value)
        bindText(parameter, *value);
    else
        bindNull(parameter);
}

void Statement::bindBlob(int parameter, std::span<const std::uint8_t> value) {
    if (value.empty())
        sqlite3_bind_zeroblob(statement_, parameter, 0);
    else
        sqlite3_bind_blob64(statement_, parameter, value.data(), value.size(), SQLITE_TRANSIENT);
}

Step Statement::step() {
    switch (sqlite3_step(statement_)) {
    case SQLITE_ROW:
        return Step::Row;
    case SQLITE_DONE:
        return Step::Done;
    default:
        return Step::Failed;
    }
}

Outcome Statement::run() {
    Step last = Step::Row;
    while (last == Step::Row)
        last = step();
    Outcome outcome;
    if (last == Step::Failed)
        outcome = error();
    reset();
    return outcome;
}

void Statement::reset() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

double Statement::real(int column) const {
    return sqlite3_column_double(statement_, column);
}

std::optional<std::string_view> Statement::optionalText(int column) const {
    const unsigned char* data = sqlite3_column_text(statement_, column);
    if (data == nullptr)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return std::string_view(reinterpret_cast<const char*>(data), size);
}

std::string_view Statement::text(int column) const {
    return optionalText(column).value_or(std::string_view());
}

std::span<const std::uint8_t> Statement::blob(int column) const {
    const auto* data = static_cast<const std::uint8_t*>(sqlite3_column_blob(statement_, column));
    return {data, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

Error Statement::error() const {
    sqlite3* connection = sqlite3_db_handle(statement_);
    return {"SQLite", sqlite3_errcode(connection), sqlite3_errmsg(connection)};
}

} // namespace tessivo::sqlite
