#pragma once

#include "Ports/Error.h"
#include "Ports/Uuid.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>

namespace tessivo {

/// The attributes of a stored event, in the order in which they are written.
enum class EventAttribute : std::uint8_t {
    title,
    dateEvent,
    timeEvent,
    repEvent,
    alertReminder,
    repReminder,
    remMess,
    timeFormat,
    color,
    gradient,
    photoPath,
    unsplashPath,
    eventType,
    id,
};

inline constexpr std::size_t eventAttributeCount = 14;

using EventAttributes = std::bitset<eventAttributeCount>;

/// The values of one row.
struct EventRecord {
    std::optional<std::string> title;
    std::optional<std::string> dateEvent;
    std::optional<std::string> timeEvent;
    std::int16_t repEvent = 0;
    std::int16_t alertReminder = 0;
    std::int16_t repReminder = 0;
    std::optional<std::string> remMess;
    std::int16_t timeFormat = 0;
    std::int16_t color = 0;
    std::int16_t gradient = 0;
    std::optional<std::string> photoPath; ///< a URI, as text
    std::optional<std::string> unsplashPath;
    bool eventType = false;
    std::optional<Uuid> id;

    friend bool operator==(const EventRecord&, const EventRecord&) = default;
};

/// The store's own name of a row. Keys rise with each insert and are never given twice; 0 is no row.
using RowKey = std::int64_t;

/// One step of a save.
struct EventChange {
    enum class Kind { Insert, Update, Delete };

    Kind kind = Kind::Insert;
    RowKey key = 0;                      ///< of an insert, filled in by a save that succeeds
    const EventRecord* values = nullptr; ///< null for a delete
    EventAttributes attributes;          ///< those that an update writes
};

/// Where a fetch puts the rows that it finds.
class EventRowReceiver {
public:
    virtual ~EventRowReceiver() = default;

    /// The record to fill with the row of that key; null where the row is not wanted. Values that the record
    /// holds already are left alone, so that refreshing a record with what it knows costs no allocation.
    virtual EventRecord* receive(RowKey key) = 0;
};

/// What changes with every change of the rows, whoever makes it.
struct StoreState {
    std::int64_t saves = 0;   ///< those through this store
    std::int64_t foreign = 0; ///< stands for the changes of others

    friend bool operator==(const StoreState&, const StoreState&) = default;
};

/// Why the store did not load.
struct LoadFailure {
    Error error;
    std::map<std::string, std::string> userInfo; ///< circumstances by name, for the console
};

/// The rows of all events on disk. One store serves any number of contexts; each sees what the others have
/// saved. Main thread only; nothing calls back but `receive`, inline.
class EventStore {
public:
    virtual ~EventStore() = default;

    /// Opens the store, and makes it where there is none. Loading a loaded store does nothing; a failed one
    /// may be tried again. What cannot be read is left as it was.
    [[nodiscard]] virtual std::optional<LoadFailure> load() = 0;

    /// Hands over the rows with that identity, or all, in the order of their keys. A store that is not loaded
    /// is an error. After an error the rows received so far are sound.
    [[nodiscard]] virtual Outcome fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) = 0;

    /// As long as the answer is the same, so is every row. Costs microseconds; empty where it cannot be told.
    [[nodiscard]] virtual std::optional<StoreState> state() = 0;

    /// Writes all changes in their order, or on failure none. When it returns they survive a loss of power.
    /// An update or delete of a row that is gone does nothing.
    [[nodiscard]] virtual Outcome save(std::span<EventChange> changes) = 0;
};

} // namespace tessivo
