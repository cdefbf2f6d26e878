#pragma once

#include "Ports/EventStore.h"
#include "sqlite/Database.h"

#include <array>
#include <string_view>

namespace tessivo::sqlite {

/// The columns of the table "events" behind its key, in the order of `EventAttribute`.
inline constexpr std::array<const char*, eventAttributeCount> eventColumns{
    "title",      "dateEvent", "timeEvent", "repEvent",  "alertReminder", "repReminder", "remMess",
    "timeFormat", "color",     "gradient",  "photoPath", "unsplashPath",  "eventType",   "id"};

extern const Schema eventSchema;

/// Creates, if it is missing, the table that records in which locale each event's dates were written. It is
/// read only when the dates can no longer be parsed.
inline constexpr const char* makeDateLocales =
    "CREATE TABLE IF NOT EXISTS dateLocales(event INTEGER PRIMARY KEY, locale TEXT NOT NULL) STRICT";

/// Records the locale, an ICU name, in which the dates of that event have just been written.
[[nodiscard]] Outcome noteDateLocale(Database& database, RowKey event, std::string_view locale);

/// Binds one attribute.
void bindAttribute(Statement& statement, int parameter, EventAttribute attribute, const EventRecord& values);

/// Reads a row whose attributes begin at `firstColumn`; leaves alone what `record` holds already.
void readAttributes(const Statement& row, int firstColumn, EventRecord& record);

} // namespace tessivo::sqlite
