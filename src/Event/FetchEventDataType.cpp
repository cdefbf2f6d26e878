#include "Event/FetchEventDataType.h"

#include "Event/CoreDataStack.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Event/PersistentContainer.h"
#include "Event/ReminderScheduler.h"
#include "Ports/Calendar.h"
#include "Ports/Clock.h"
#include "Ports/DateFormatter.h"

#include <algorithm>
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

struct FetchEventDataType::Formatters {
    std::unique_ptr<DateFormatter> full;
    std::unique_ptr<DateFormatter> date;
};

struct FetchEventDataType::Seen {
    StoreState state;
    Instant nextMoment; ///< of the event ahead that comes first
    Formatters formatters;
    std::shared_ptr<const PastReminders> past;
};

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

FetchEventDataType::~FetchEventDataType() = default;

void FetchEventDataType::refreshEvents() {
    const Instant now = clock_.now();
    if (seen_ && isStill(*seen_, now)) {
        reminders_.finishPass(seen_->past, now);
        return;
    }
    seen_.reset();
    Formatters formatters{formatters_.make(fullFormat), formatters_.make(dateFormat)};
    CoreDataStack reading(store_, console_);
    EventContext& rows = reading.viewContext();
    const auto state = store_.state();

    std::vector<EventRecord> finished;
    Instant nextMoment = Instant::max();
    Outcome failure = rows.visit([&](const EventRecord& event) {
        const auto eventDate = event.eventType ? eventDateOf(event.dateEvent, event.timeEvent,
                                                             *formatters.full, *formatters.date)
                                               : std::nullopt;
        if (eventDate && isPast(*eventDate, now))
            finished.push_back(event);
        else if (eventDate)
            nextMoment = std::min(nextMoment, *eventDate);
    });
    if (failure)
        finished.clear();
    for (auto& event : finished)
        roll(std::move(event), *formatters.date);

    // Read anew, so that what has just moved to Past is among them.
    auto past = std::make_shared<PastReminders>();
    const auto notePast = [&](const EventRecord& event) {
        if (!event.eventType)
            reminders_.refreshPastReminder(event, *formatters.full, *formatters.date, *past);
    };
    if (auto error = shared_.viewContext().visit(notePast)) {
        failure = std::move(error);
        past->events.clear();
    }
    past->events.shrink_to_fit();
    reminders_.finishPass(past, now);
    if (!failure && state && finished.empty() && !shared_.viewContext().hasChanges())
        seen_ = std::make_unique<const Seen>(Seen{*state, nextMoment, std::move(formatters), past});
}

/// Whether a look at every row would find what that pass has seen, and write nothing either.
bool FetchEventDataType::isStill(const Seen& seen, Instant now) {
    return !isPast(seen.nextMoment, now) && store_.state() == seen.state &&
           !shared_.viewContext().hasChanges() && formatters_.isCurrent(*seen.formatters.full) &&
           formatters_.isCurrent(*seen.formatters.date);
}

void FetchEventDataType::roll(EventRecord event, const DateFormatter& dateFormatter) {
    if (event.repEvent == 0)
        moveToPast(event);
    else
        rollOn(std::move(event), dateFormatter);
}

void FetchEventDataType::moveToPast(const EventRecord& event) {
    if (event.id)
        shared_.updateDateAndTime(*event.id, event.dateEvent.value_or(""), event.timeEvent.value_or(""),
                                  event.timeFormat, event.repEvent, false);
}

void FetchEventDataType::rollOn(EventRecord event, const DateFormatter& dateFormatter) {
    const auto step = static_cast<std::size_t>(event.repEvent - 1);
    const auto day = dateFormatter.date(*event.dateEvent);
    if (day && step < steps.size())
        event.dateEvent = dateFormatter.string(calendar_.adding(steps[step].unit, steps[step].value, *day));
    if (!event.id)
        return;
    shared_.updateDate(*event.id, *event.dateEvent);
    if (event.alertReminder != NO_VALUE)
        reminders_.renewRolledReminder(event);
}

} // namespace tessivo
