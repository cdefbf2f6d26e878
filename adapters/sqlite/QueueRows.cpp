#include "sqlite/QueueRows.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tessivo::sqlite {
namespace {

using Field = std::optional<int> DateComponents::*;
constexpr std::array<Field, 6> fields{&DateComponents::year,   &DateComponents::month,
                                      &DateComponents::day,    &DateComponents::hour,
                                      &DateComponents::minute, &DateComponents::second};
constexpr int firstField = 5;
constexpr int lastColumn = firstField + static_cast<int>(fields.size());

} // namespace

const Schema queueSchema{0x54515545, 1, R"(
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

const char* const selectRequests =
    "SELECT sequence, identifier, title, body, sound, year, month, day, hour, minute, second, repeats"
    " FROM pending ORDER BY sequence";

const char* const selectRequest =
    "SELECT sequence, identifier, title, body, sound, year, month, day, hour, minute, second, repeats"
    " FROM pending WHERE sequence = ?";

const char* const insertRequest =
    "INSERT OR REPLACE INTO pending (sequence, identifier, title, body, sound, year, month, day, hour,"
    " minute, second, repeats) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";

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
    queued.request.trigger.repeats = row.integer(lastColumn) != 0;
    return queued;
}

void bindRequest(Statement& row, const NotificationRequest& request, std::optional<std::int64_t> sequence) {
    // Parameters count from 1, columns from 0.
    if (sequence)
        row.bindInteger(1, *sequence);
    row.bindText(2, std::string_view(request.identifier));
    row.bindText(3, std::string_view(request.content.title));
    row.bindText(4, std::string_view(request.content.body));
    row.bindInteger(5, request.content.defaultSound ? 1 : 0);
    for (std::size_t index = 0; index < fields.size(); ++index) {
        if (const auto value = request.trigger.dateComponents.*fields[index])
            row.bindInteger(firstField + 1 + static_cast<int>(index), *value);
    }
    row.bindInteger(lastColumn + 1, request.trigger.repeats ? 1 : 0);
}

} // namespace tessivo::sqlite
