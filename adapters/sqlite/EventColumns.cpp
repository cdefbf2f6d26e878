#include "sqlite/EventColumns.h"

#include <algorithm>

namespace tessivo::sqlite {
namespace {

/// Most rows come back as they were: comparing first spares the copy.
void assign(std::optional<std::string>& field, std::optional<std::string_view> value) {
    if (!value)
        field.reset();
    else if (!field)
        field.emplace(*value);
    else if (*field != *value)
        field->assign(*value);
}

std::int16_t shortInteger(const Statement& row, int column) {
    return static_cast<std::int16_t>(row.integer(column));
}

std::optional<Uuid> uuid(const Statement& row, int column) {
    const auto bytes = row.blob(column);
    Uuid value;
    if (bytes.size() != value.bytes.size())
        return std::nullopt;
    std::ranges::copy(bytes, value.bytes.begin());
    return value;
}

} // namespace

// Keys are never given twice: another context may still hold the object of a deleted row.
const Schema eventSchema{.applicationId = 0x54534556,
                         .version = 1,
                         .sql = R"(
CREATE TABLE events(
    key INTEGER PRIMARY KEY AUTOINCREMENT,
    title TEXT,
    dateEvent TEXT,
    timeEvent TEXT,
    repEvent INTEGER NOT NULL CHECK(repEvent BETWEEN -32768 AND 32767),
    alertReminder INTEGER NOT NULL CHECK(alertReminder BETWEEN -32768 AND 32767),
    repReminder INTEGER NOT NULL CHECK(repReminder BETWEEN -32768 AND 32767),
    remMess TEXT,
    timeFormat INTEGER NOT NULL CHECK(timeFormat BETWEEN -32768 AND 32767),
    color INTEGER NOT NULL CHECK(color BETWEEN -32768 AND 32767),
    gradient INTEGER NOT NULL CHECK(gradient BETWEEN -32768 AND 32767),
    photoPath TEXT,
    unsplashPath TEXT,
    eventType INTEGER NOT NULL CHECK(eventType IN (0, 1)),
    id BLOB CHECK(length(id) = 16)
) STRICT;
CREATE INDEX events_by_id ON events(id);
)",
                         .countOfBrokenRows = R"(
SELECT count(*) FROM events
WHERE repEvent NOT BETWEEN -32768 AND 32767 OR alertReminder NOT BETWEEN -32768 AND 32767
   OR repReminder NOT BETWEEN -32768 AND 32767 OR timeFormat NOT BETWEEN -32768 AND 32767
   OR color NOT BETWEEN -32768 AND 32767 OR gradient NOT BETWEEN -32768 AND 32767
   OR eventType NOT IN (0, 1) OR length(id) <> 16
)"};

Outcome noteDateLocale(Database& database, RowKey event, std::string_view locale) {
    auto prepared = database.prepare("INSERT OR REPLACE INTO dateLocales(event, locale) VALUES(?, ?)");
    if (!prepared)
        return prepared.error();
    prepared.value().bindInteger(1, event);
    prepared.value().bindText(2, locale);
    return prepared.value().run();
}

void bindAttribute(Statement& statement, int parameter, EventAttribute attribute, const EventRecord& values) {
    switch (attribute) {
    case EventAttribute::title:
        return statement.bindOptionalText(parameter, values.title);
    case EventAttribute::dateEvent:
        return statement.bindOptionalText(parameter, values.dateEvent);
    case EventAttribute::timeEvent:
        return statement.bindOptionalText(parameter, values.timeEvent);
    case EventAttribute::repEvent:
        return statement.bindInteger(parameter, values.repEvent);
    case EventAttribute::alertReminder:
        return statement.bindInteger(parameter, values.alertReminder);
    case EventAttribute::repReminder:
        return statement.bindInteger(parameter, values.repReminder);
    case EventAttribute::remMess:
        return statement.bindOptionalText(parameter, values.remMess);
    case EventAttribute::timeFormat:
        return statement.bindInteger(parameter, values.timeFormat);
    case EventAttribute::color:
        return statement.bindInteger(parameter, values.color);
    case EventAttribute::gradient:
        return statement.bindInteger(parameter, values.gradient);
    case EventAttribute::photoPath:
        return statement.bindOptionalText(parameter, values.photoPath);
    case EventAttribute::unsplashPath:
        return statement.bindOptionalText(parameter, values.unsplashPath);
    case EventAttribute::eventType:
        return statement.bindInteger(parameter, values.eventType ? 1 : 0);
    case EventAttribute::id:
        return values.id ? statement.bindBlob(parameter, values.id->bytes) : statement.bindNull(parameter);
    }
}

void readAttributes(const Statement& row, int firstColumn, EventRecord& record) {
    int column = firstColumn;
    assign(record.title, row.optionalText(column++));
    assign(record.dateEvent, row.optionalText(column++));
    assign(record.timeEvent, row.optionalText(column++));
    record.repEvent = shortInteger(row, column++);
    record.alertReminder = shortInteger(row, column++);
    record.repReminder = shortInteger(row, column++);
    assign(record.remMess, row.optionalText(column++));
    record.timeFormat = shortInteger(row, column++);
    record.color = shortInteger(row, column++);
    record.gradient = shortInteger(row, column++);
    assign(record.photoPath, row.optionalText(column++));
    assign(record.unsplashPath, row.optionalText(column++));
    record.eventType = row.integer(column++) != 0;
    record.id = uuid(row, column);
}

} // namespace tessivo::sqlite
