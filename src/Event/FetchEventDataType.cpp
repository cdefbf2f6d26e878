#include "Event/FetchEventDataType.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Event/ReminderScheduler.h"
#include "Ports/Calendar.h"
#include "Ports/Clock.h"
#include "Ports/DateFormatter.h"

#include <array>
#include <cstddef>
#include <utility>

namespace tessivo {
namespace {

struct Step {
    CalendarUnit unit;
    int value;
};

/// By `repEvent`, less one: 0 never repeats.
constexpr std::array<Step, 5> steps{{{CalendarUnit::Day, 1},
                                     {CalendarUnit::WeekOfYear, 1},
                                     {CalendarUnit::WeekOfYear, 2},
                                     {CalendarUnit::Month, 1},
                                     {CalendarUnit::Year, 1}}};

} // namespace

FetchEventDataType::FetchEventDataType(EventStore& store, CoreDataStack& shared, ReminderScheduler& reminders,
                                       const DateFormatters& formatters, const Calendar& calendar,
                                       const Clock& clock, Console& console)
    : store_(store),
      shared_(shared),
      reminders_(reminders),
      formatters_(formatters),
      calendar_(calendar),
      clock_(clock),
      console_(console) {}

void FetchEventDataType::refreshEvents() {
    const auto fullFormatter = formatters_.make(fullFormat);
    const auto dateFormatter = formatters_.make(dateFormat);
    ReminderPass pass(*fullFormatter, *dateFormatter, clock_.now());

    CoreDataStack reading(store_, console_);
    for (const auto& event : reading.fetchEvents()) {
        if (event->eventType())
            rollFutureEvent(*event, pass);
    }
    // Fetched anew, so that what has just moved to Past is among them.
    for (const auto& event : shared_.fetchEvents()) {
        if (!event->eventType())
            reminders_.refreshPastReminder(*event, pass);
    }
    reminders_.finishPass(std::move(pass));
}

void FetchEventDataType::rollFutureEvent(EventCoreData& event, ReminderPass& pass) {
    const auto eventDate =
        eventDateOf(event.dateEvent(), event.timeEvent(), pass.fullFormatter, pass.dateFormatter);
    if (!eventDate)
        return;
    pass.lastEventDate = *eventDate;
    if (!isPast(*eventDate, pass.now))
        return;
    if (event.repEvent() == 0)
        moveToPast(event);
    else
        rollOn(event, pass);
}

void FetchEventDataType::moveToPast(EventCoreData& event) {
    event.setEventType(false);
    if (!event.id())
        return;
    shared_.updateDateAndTime(*event.id(), event.dateEvent().value_or(""), event.timeEvent().value_or(""),
                              event.timeFormat(), event.repEvent(), false);
}

void FetchEventDataType::rollOn(EventCoreData& event, const ReminderPass& pass) {
    const auto step = static_cast<std::size_t>(event.repEvent() - 1);
    const auto day = pass.dateFormatter.date(*event.dateEvent());
    if (day && step < steps.size())
        event.setDateEvent(
            pass.dateFormatter.string(calendar_.adding(steps[step].unit, steps[step].value, *day)));
    if (!event.id())
        return;
    shared_.updateDate(*event.id(), *event.dateEvent());
    if (event.alertReminder() != NO_VALUE)
        reminders_.renewRolledReminder(event);
}

} // namespace tessivo
