#include "Event/ReminderScheduler.h"

#include "Event/EventCoreData.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Event/ReminderRules.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Ports/DateFormatter.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace tessivo {

/// How the places that make a notification differ.
struct ReminderSite {
    bool futureRepeats;
    bool pastRepeats;
    std::span<const std::string_view> successLines;
    bool successFollowsFailure; ///< one completion prints both
};

namespace {

constexpr std::string_view wizardLines[] = {"СОЗДАНИЕ УВЕДОМЛЕНИЯ ПРОШЛО УСПЕШНО", "уведомление создано"};
constexpr std::string_view createdLine[] = {"уведомление создано"};
constexpr std::string_view recreatedLine[] = {"уведомление ПЕРЕсоздаНО"};

constexpr ReminderSite wizardFinish{false, false, wizardLines, false};
constexpr ReminderSite rolledEvent{false, false, createdLine, true};
constexpr ReminderSite recreatedPast{false, false, recreatedLine, true};
constexpr ReminderSite restoredEvent{false, false, {}, false};
constexpr ReminderSite editedDateAndTime{true, false, createdLine, false};
constexpr ReminderSite editedReminder{true, false, createdLine, false};

constexpr int allAuthorizations = AuthorizeBadge + AuthorizeSound + AuthorizeAlert;

std::string aboutNotification(const std::string& identifier, std::string_view whatHappened) {
    return "Уведомление с идентификатором " + identifier + std::string(whatHappened);
}

const NotificationRequest* find(const PendingRequests& pending, const std::string& identifier) {
    const auto found = std::ranges::find(*pending, identifier, &NotificationRequest::identifier);
    return found == pending->end() ? nullptr : &*found;
}

std::unordered_set<std::string_view> identifiersOf(const PendingRequests& pending) {
    std::unordered_set<std::string_view> identifiers(pending->size());
    for (const auto& request : *pending)
        identifiers.insert(request.identifier);
    return identifiers;
}

NotificationContent contentOf(const EventRecord& event) {
    return {event.title.value_or(""), event.remMess.value_or(""), true};
}

} // namespace

ReminderScheduler::ReminderScheduler(NotificationCenter& center, const Calendar& calendar,
                                     const DateFormatters& formatters, const Clock& clock, Console& console)
    : center_(center), calendar_(calendar), formatters_(formatters), clock_(clock), console_(console) {}

void ReminderScheduler::finishWizard(const EventItem& item) {
    if (item.alertReminder == NO_VALUE || !item.id)
        return;
    center_.requestAuthorization(allAuthorizations,
                                 [this, event = recordOf(item)](bool granted, const Outcome&) {
                                     if (granted)
                                         add(makeRequest(event, wizardFinish), wizardFinish);
                                 });
}

void ReminderScheduler::renewRolledReminder(const EventRecord& event) {
    if (event.alertReminder == NO_VALUE || !event.id)
        return;
    add(makeRequest(event, rolledEvent), rolledEvent);
}

void ReminderScheduler::refreshPastReminder(const EventRecord& event, const DateFormatter& fullFormatter,
                                            const DateFormatter& dateFormatter, PastReminders& noted) {
    if (event.repReminder == NO_VALUE)
        return;
    const auto eventDate =
        tessivo::eventDateOf(event.dateEvent, event.timeEvent, fullFormatter, dateFormatter);
    if (!eventDate)
        console_.stopProgram("The date of a past event cannot be parsed");
    noted.lastEventDate = *eventDate;
    if (event.id)
        noted.events.push_back({*event.id, contentOf(event), event.repReminder});
}

void ReminderScheduler::finishPass(std::shared_ptr<const PastReminders> noted, Instant now) {
    if (noted->events.empty())
        return;
    center_.getPendingNotificationRequests(
        [this, noted = std::move(noted), now](const PendingRequests& pending) {
            if (noted == completeNoted_ && pending == completePending_)
                return;
            const bool isComplete = recreateMissing(*noted, now, pending) == 0;
            completeNoted_ = isComplete ? noted : nullptr;
            completePending_ = isComplete ? pending : nullptr;
        });
}

int ReminderScheduler::recreateMissing(const PastReminders& noted, Instant now,
                                       const PendingRequests& pending) {
    const auto identifiers = identifiersOf(pending);
    int missing = 0;
    for (const auto& event : noted.events) {
        const auto identifier = event.id.uuidString();
        if (identifiers.contains(identifier))
            continue;
        const auto components =
            repeatComponents(noted.lastEventDate, event.repReminder, now, calendar_, console_);
        add({identifier, event.content, {components, recreatedPast.pastRepeats}}, recreatedPast);
        ++missing;
    }
    return missing;
}

void ReminderScheduler::editDateAndTime(const EventCoreData& event) {
    if (!event.id())
        return;
    if (event.alertReminder() != NO_VALUE)
        remakePending(event.values());
    remakePending(event.values());
}

void ReminderScheduler::remakePending(const EventRecord& event) {
    center_.getPendingNotificationRequests([this, event](const PendingRequests& pending) {
        const auto identifier = event.id->uuidString();
        if (find(pending, identifier) == nullptr)
            return;
        center_.removePendingNotificationRequests({identifier});
        if (event.eventType || event.repReminder != NO_VALUE)
            add(makeRequest(event, editedDateAndTime), editedDateAndTime);
    });
}

void ReminderScheduler::editReminder(const EventCoreData& event) {
    if (!event.id())
        return;
    center_.getPendingNotificationRequests([this, event = event.values()](const PendingRequests& pending) {
        const auto identifier = event.id->uuidString();
        if (find(pending, identifier) != nullptr)
            center_.removePendingNotificationRequests({identifier});
        add(makeRequest(event, editedReminder), editedReminder);
    });
}

void ReminderScheduler::editTitle(const EventCoreData& event) {
    if (!event.id())
        return;
    center_.getPendingNotificationRequests(
        [this, identifier = event.id()->uuidString(),
         title = event.title().value_or("")](const PendingRequests& pending) {
            const auto* found = find(pending, identifier);
            if (found == nullptr) {
                console_.print(aboutNotification(identifier, " не найдено"));
                return;
            }
            auto retitled = *found;
            retitled.content.title = title;
            center_.removePendingNotificationRequests({identifier});
            addRetitled(std::move(retitled));
        });
}

void ReminderScheduler::restoreReminders(const std::vector<std::shared_ptr<EventCoreData>>& events) {
    std::vector<NotificationRequest> requests;
    for (const auto& event : events) {
        const bool reminds = event->eventType() && event->alertReminder() != NO_VALUE && event->id();
        if (reminds && parsedDateOf(event->values()))
            requests.push_back(makeRequest(event->values(), restoredEvent));
    }
    center_.getPendingNotificationRequests(
        [this, requests = std::move(requests)](const PendingRequests& pending) {
            const auto identifiers = identifiersOf(pending);
            for (const auto& request : requests) {
                if (!identifiers.contains(request.identifier))
                    add(request, restoredEvent);
            }
        });
}

void ReminderScheduler::removeReminder(const std::optional<Uuid>& id) {
    if (!id)
        return;
    center_.getPendingNotificationRequests(
        [this, identifier = id->uuidString()](const PendingRequests& pending) {
            if (find(pending, identifier) == nullptr) {
                console_.print(aboutNotification(identifier, " не найдено"));
                return;
            }
            center_.removePendingNotificationRequests({identifier});
            console_.print(aboutNotification(identifier, " удалено"));
        });
}

std::optional<Instant> ReminderScheduler::parsedDateOf(const EventRecord& event) const {
    return tessivo::eventDateOf(event.dateEvent, event.timeEvent, *formatters_.make(fullFormat),
                                *formatters_.make(dateFormat));
}

Instant ReminderScheduler::eventDateOf(const EventRecord& event) const {
    const auto date = parsedDateOf(event);
    if (!date)
        console_.stopProgram("The date of an event that reminds cannot be parsed");
    return *date;
}

NotificationRequest ReminderScheduler::makeRequest(const EventRecord& event, const ReminderSite& site) const {
    const auto eventDate = eventDateOf(event);
    const auto components =
        event.eventType ? alertComponents(eventDate, event.alertReminder, calendar_, console_)
                        : repeatComponents(eventDate, event.repReminder, clock_.now(), calendar_, console_);
    return {event.id->uuidString(),
            contentOf(event),
            {components, event.eventType ? site.futureRepeats : site.pastRepeats}};
}

void ReminderScheduler::add(NotificationRequest request, const ReminderSite& site) {
    center_.add(std::move(request), [this, &site](const Outcome& error) {
        if (error)
            console_.print("Ошибка при добавлении уведомления: " + error->description);
        if (error && !site.successFollowsFailure)
            return;
        for (const auto line : site.successLines)
            console_.print(line);
    });
}

void ReminderScheduler::addRetitled(NotificationRequest request) {
    const auto identifier = request.identifier;
    center_.add(std::move(request), [this, identifier](const Outcome& error) {
        if (error)
            console_.print("Ошибка при обновлении уведомления: " + error->description);
        else
            console_.print(aboutNotification(identifier, " обновлено"));
    });
}

} // namespace tessivo
