#pragma once

#include "Ports/NotificationCenter.h"
#include "Ports/Time.h"
#include "Ports/Uuid.h"

#include <atomic>
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

/// What all rows of one pass over the events share.
struct ReminderPass {
    const DateFormatter& fullFormatter;
    const DateFormatter& dateFormatter;
    Instant now; ///< the one instant of the pass

    /// The date of the row that the pass has looked at last, in seconds since 1970. Reminders of past events
    /// are reckoned from what it holds when the notification center answers: after the pass, the date of its
    /// last row.
    std::shared_ptr<std::atomic<double>> lastEventDate;
};

/// The one notification of each event, under the event's identity as its identifier. There is no record of it
/// but the center's queue. An event ahead reminds by `alertReminder`, a past one by `repReminder`; the
/// trigger fires once, and for a past event the pass makes the next one when that has happened.
///
/// Each operation is one of the places at which the program makes, renews or removes that notification. They
/// are called on the main thread, return at once and end silently for an event without `id`. What follows
/// runs in the center's completions, on its queue: rows belong to the main thread, so all that is needed of a
/// row is copied before. A date text that is needed and does not read stops the program.
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

    /// The pass looks at a past event: adds a notification where none is pending, unless the reminder is off.
    void refreshPastReminder(const EventCoreData& event, const ReminderPass& pass);

    /// Date and time have been edited: makes a pending notification anew. That is looked up twice while the
    /// event has an alert, each time on the queue as it stands then; one notification remains. For a past
    /// event whose reminder is off the pending one is only removed.
    void editDateAndTime(const EventCoreData& event);

    /// The reminder has been edited and is on: makes the notification anew, whether one was pending or not.
    void editReminder(const EventCoreData& event);

    /// The title has been edited: a pending notification keeps its body, sound and trigger.
    void editTitle(const EventCoreData& event);

    /// The event of this `id` is deleted, or about to be.
    void removeReminder(const std::optional<Uuid>& id);

private:
    struct Details;

    [[nodiscard]] static Details detailsOf(const EventCoreData& event);
    [[nodiscard]] static Details detailsOf(const EventItem& item);
    [[nodiscard]] Instant eventDateOf(const Details& details) const;
    [[nodiscard]] NotificationRequest makeRequest(const Details& details, const ReminderSite& site) const;
    void remakePending(const Details& details);
    void recreatePastReminder(const Details& details, Instant now, Instant eventDate,
                              const std::vector<NotificationRequest>& pending);
    void add(NotificationRequest request, const ReminderSite& site);
    void addRetitled(NotificationRequest request);

    NotificationCenter& center_;
    const Calendar& calendar_;
    const DateFormatters& formatters_;
    const Clock& clock_;
    Console& console_;
};

} // namespace tessivo
