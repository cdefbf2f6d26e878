#pragma once

#include "Ports/EventStore.h"
#include "Ports/Time.h"

#include <memory>

namespace tessivo {

class Calendar;
class Clock;
class Console;
class CoreDataStack;
class DateFormatter;
class DateFormatters;
class ReminderScheduler;

/// The pass over all events, which keeps both lists true while time goes by: it moves finished events to
/// Past, rolls repeating ones on, and keeps the notifications of past ones alive. Main thread only; all that
/// it is made of must outlive it.
///
/// Every list that was ever shown asks for a pass each minute. So a pass that wrote nothing leaves behind
/// what it has seen, and until a row, the zone or the language changes, or a moment is reached, the passes
/// after it only see whether a notification has gone. What they do is the same as if they looked at every
/// row.
class FetchEventDataType final {
public:
    /// `shared` makes all changes; `store` is read.
    FetchEventDataType(EventStore& store, CoreDataStack& shared, ReminderScheduler& reminders,
                       const DateFormatters& formatters, const Calendar& calendar, const Clock& clock,
                       Console& console);
    ~FetchEventDataType();

    /// Makes one pass. A repeating event rolls on by one step: one that has lain still for a week catches up
    /// over as many passes. Future events whose dates cannot be parsed are left out silently.
    void refreshEvents();

private:
    struct Formatters;
    struct Seen;

    [[nodiscard]] bool isStill(const Seen& seen, Instant now);
    void roll(EventRecord event, const DateFormatter& dateFormatter);
    void moveToPast(const EventRecord& event);
    void rollOn(EventRecord event, const DateFormatter& dateFormatter);

    EventStore& store_;
    CoreDataStack& shared_;
    ReminderScheduler& reminders_;
    const DateFormatters& formatters_;
    const Calendar& calendar_;
    const Clock& clock_;
    Console& console_;
    std::unique_ptr<const Seen> seen_; ///< by the last pass over all rows, if it wrote nothing
};

} // namespace tessivo
