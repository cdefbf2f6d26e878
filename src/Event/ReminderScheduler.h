#pragma once

#include "Ports/NotificationCenter.h"
#include "Ports/Time.h"
#include "Ports/Uuid.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessivo {

class Clock;
class Console;
class DateFormatter;
class DateFormatters;
class EventCoreData;
struct EventItem;
struct EventRecord;
struct ReminderSite;

/// The past events of a pass that remind, in the order of their rows.
struct PastReminders {
    struct Event {
        Uuid id;
        NotificationContent content;
        std::int16_t repReminder;
    };

    std::vector<Event> events;
    /// The date of the last row that reminds. The reminders of all of them are computed from it.
    Instant lastEventDate = Instant();
};

/// The one notification of each event, under the event's identity as its identifier. There is no record of it
/// but the center's queue. An event ahead reminds by `alertReminder`, a past one by `repReminder`; the
/// trigger fires once, and for a past event the pass makes the next one when that has happened.
///
/// Each operation is one of the places at which the program makes, renews or removes that notification. They
/// are called on the main thread, return at once and end silently for an event without `id`. What follows
/// runs in the center's completions, on its queue: rows belong to the main thread, so their values are copied
/// before. A date text that is needed and cannot be parsed stops the program.
///
/// The ports must outlive the scheduler, and the scheduler the last completion.
class ReminderScheduler final {
public:
    ReminderScheduler(NotificationCenter& center, const Calendar& calendar, const DateFormatters& formatters,
                      const Clock& clock, Console& console);

    /// The wizard has stored `item`: asks for permission, unless the reminder is off, and adds the
    /// notification if it is granted.
    void finishWizard(const EventItem& item);

    /// The pass has rolled the event on to its next date: replaces the notification, unless the reminder is
    /// off.
    void renewRolledReminder(const EventRecord& event);

    /// The pass looks at a past event: notes it, unless the reminder is off. The formatters parse
    /// `fullFormat` and `dateFormat`.
    void refreshPastReminder(const EventRecord& event, const DateFormatter& fullFormatter,
                             const DateFormatter& dateFormatter, PastReminders& noted);

    /// The pass of that moment is over: adds a notification for each past event noted that has none pending.
    /// It looks at them one by one only if these are others than at the last pass, or what is pending is.
    void finishPass(std::shared_ptr<const PastReminders> noted, Instant now);

    /// Date and time have been edited: makes a pending notification anew. That is looked up twice while the
    /// event has an alert, each time on the queue as it stands then; one notification remains. For a past
    /// event whose reminder is off the pending one is only removed.
    void editDateAndTime(const EventCoreData& event);

    /// The reminder has been edited and is on: makes the notification anew, whether one was pending or not.
    void editReminder(const EventCoreData& event);

    /// The title has been edited: a pending notification keeps its body, sound and trigger.
    void editTitle(const EventCoreData& event);

    /// Requests were lost with a damaged queue: adds those of `events` that lie ahead, have their reminder on
    /// and have none pending. Past events get theirs in the next pass. A date that cannot be parsed is left
    /// out.
    void restoreReminders(const std::vector<std::shared_ptr<EventCoreData>>& events);

    /// The event of this `id` is deleted, or about to be.
    void removeReminder(const std::optional<Uuid>& id);

private:
    [[nodiscard]] std::optional<Instant> parsedDateOf(const EventRecord& event) const;
    [[nodiscard]] Instant eventDateOf(const EventRecord& event) const;
    /// `event` has an identity.
    [[nodiscard]] NotificationRequest makeRequest(const EventRecord& event, const ReminderSite& site) const;
    void remakePending(const EventRecord& event);
    /// Says how many were missing.
    int recreateMissing(const PastReminders& noted, Instant now, const PendingRequests& pending);
    void add(NotificationRequest request, const ReminderSite& site);
    void addRetitled(NotificationRequest request);

    NotificationCenter& center_;
    const Calendar& calendar_;
    const DateFormatters& formatters_;
    const Clock& clock_;
    Console& console_;

    // Used on the center's queue only: the last two lists of which all that was noted was pending.
    std::shared_ptr<const PastReminders> completeNoted_;
    PendingRequests completePending_;
};

} // namespace tessivo
