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
struct ReminderSite;

/// What a notification needs of its event: completions must not touch rows.
struct ReminderDetails {
    std::string identifier;
    NotificationContent content;
    std::optional<std::string> dateEvent;
    std::optional<std::string> timeEvent;
    std::int16_t alertReminder;
    std::int16_t repReminder;
    bool isFuture;
};

/// One pass over the events, from its first row to its last.
struct ReminderPass {
    ReminderPass(const DateFormatter& full, const DateFormatter& date, Instant moment)
        : fullFormatter(full), dateFormatter(date), now(moment) {}

    const DateFormatter& fullFormatter;
    const DateFormatter& dateFormatter;
    Instant now; ///< the one instant of the pass

    /// The date of the row that the pass has looked at last. The reminders of all past events of a pass are
    /// computed from the date of its last row.
    Instant lastEventDate = Instant();
    std::vector<ReminderDetails> pastEvents; ///< those that remind, in the order of the rows
};

/// The one notification of each event, under the event's identity as its identifier. There is no record of it
/// but the center's queue. An event ahead reminds by `alertReminder`, a past one by `repReminder`; the
/// trigger fires once, and for a past event the pass makes the next one when that has happened.
///
/// Each operation is one of the places at which the program makes, renews or removes that notification. They
/// are called on the main thread, return at once and end silently for an event without `id`. What follows
/// runs in the center's completions, on its queue: rows belong to the main thread, so all that is needed of a
/// row is copied before. A date text that is needed and cannot be parsed stops the program.
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
    void renewRolledReminder(const EventCoreData& event);

    /// The pass looks at a past event: notes it, unless the reminder is off.
    void refreshPastReminder(const EventCoreData& event, ReminderPass& pass);

    /// The pass is over: adds a notification for each past event that it has noted and that has none pending.
    void finishPass(ReminderPass pass);

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
    [[nodiscard]] static ReminderDetails detailsOf(const EventCoreData& event);
    [[nodiscard]] static ReminderDetails detailsOf(const EventItem& item);
    [[nodiscard]] std::optional<Instant> parsedDateOf(const ReminderDetails& details) const;
    [[nodiscard]] Instant eventDateOf(const ReminderDetails& details) const;
    [[nodiscard]] NotificationRequest makeRequest(const ReminderDetails& details,
                                                  const ReminderSite& site) const;
    void remakePending(const ReminderDetails& details);
    void recreatePastReminder(const ReminderDetails& details, Instant now, Instant eventDate);
    void add(NotificationRequest request, const ReminderSite& site);
    void addRetitled(NotificationRequest request);

    NotificationCenter& center_;
    const Calendar& calendar_;
    const DateFormatters& formatters_;
    const Clock& clock_;
    Console& console_;
};

} // namespace tessivo
