#pragma once

namespace tessivo {

class Calendar;
class Clock;
class Console;
class CoreDataStack;
class DateFormatters;
class EventCoreData;
class EventStore;
class ReminderScheduler;
struct ReminderPass;

/// The pass over all events, which keeps both lists true while time goes by: it moves finished events to
/// Past, rolls repeating ones on, and keeps the notifications of past ones alive. Nothing is kept from one
/// pass to the next. Main thread only; all that it is made of must outlive it.
class FetchEventDataType final {
public:
    /// `shared` makes all changes; `store` is read.
    FetchEventDataType(EventStore& store, CoreDataStack& shared, ReminderScheduler& reminders,
                       const DateFormatters& formatters, const Calendar& calendar, const Clock& clock,
                       Console& console);

    /// Makes one pass. A repeating event rolls on by one step: one that has lain still for a week catches up
    /// over as many passes. Future events whose dates cannot be parsed are left out silently.
    void refreshEvents();

private:
    void rollFutureEvent(EventCoreData& event, ReminderPass& pass);
    void moveToPast(EventCoreData& event);
    void rollOn(EventCoreData& event, const ReminderPass& pass);

    EventStore& store_;
    CoreDataStack& shared_;
    ReminderScheduler& reminders_;
    const DateFormatters& formatters_;
    const Calendar& calendar_;
    const Clock& clock_;
    Console& console_;
};

} // namespace tessivo
