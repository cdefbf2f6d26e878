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

const NotificationRequest* find(const std::vector<NotificationRequest>& requests,
                                const std::string& identifier) {
    const auto found = std::ranges::find(requests, identifier, &NotificationRequest::identifier);
    return found == requests.end() ? nullptr : &*found;
}

} // namespace

ReminderScheduler::ReminderScheduler(NotificationCenter& center, const Calendar& calendar,
                                     const DateFormatters& formatters, const Clock& clock, Console& console)
    : center_(center), calendar_(calendar), formatters_(formatters), clock_(clock), console_(console) {}

void ReminderScheduler::finishWizard(const EventItem& item) {
    if (item.alertReminder == NO_VALUE || !item.id)
        return;
    center_.requestAuthorization(allAuthorizations,
                                 [this, details = detailsOf(item)](bool granted, const Outcome&) {
                                     if (granted)
                                         add(makeRequest(details, wizardFinish), wizardFinish);
                                 });
}

void ReminderScheduler::renewRolledReminder(const EventCoreData& event) {
    if (event.alertReminder() == NO_VALUE || !event.id())
        return;
    add(makeRequest(detailsOf(event), rolledEvent), rolledEvent);
}

void ReminderScheduler::refreshPastReminder(const EventCoreData& event, ReminderPass& pass) {
    if (event.repReminder() == NO_VALUE)
        return;
    const auto eventDate =
        tessivo::eventDateOf(event.dateEvent(), event.timeEvent(), pass.fullFormatter, pass.dateFormatter);
    if (!eventDate)
        console_.stopProgram("The date of a past event cannot be parsed");
    pass.lastEventDate = *eventDate;
    if (event.id())
        pass.pastEvents.push_back(detailsOf(event));
}

void ReminderScheduler::finishPass(ReminderPass pass) {
    if (pass.pastEvents.empty())
        return;
    center_.getPendingNotificationRequests(
        [this, events = std::move(pass.pastEvents), now = pass.now,
         date = pass.lastEventDate](const std::vector<NotificationRequest>& pending) {
            std::unordered_set<std::string_view> identifiers;
            for (const auto& request : pending)
                identifiers.insert(request.identifier);
            for (const auto& details : events) {
                if (!identifiers.contains(details.identifier))
                    recreatePastReminder(details, now, date);
            }
        });
}

void ReminderScheduler::recreatePastReminder(const ReminderDetails& details, Instant now, Instant eventDate) {
    const auto components = repeatComponents(eventDate, details.repReminder, now, calendar_, console_);
    add({details.identifier, details.content, {components, recreatedPast.pastRepeats}}, recreatedPast);
}

void ReminderScheduler::editDateAndTime(const EventCoreData& event) {
    if (!event.id())
        return;
    const auto details = detailsOf(event);
    if (details.alertReminder != NO_VALUE)
        remakePending(details);
    remakePending(details);
}

void ReminderScheduler::remakePending(const ReminderDetails& details) {
    center_.getPendingNotificationRequests([this, details](const std::vector<NotificationRequest>& pending) {
        if (find(pending, details.identifier) == nullptr)
            return;
        center_.removePendingNotificationRequests({details.identifier});
        if (details.isFuture || details.repReminder != NO_VALUE)
            add(makeRequest(details, editedDateAndTime), editedDateAndTime);
    });
}

void ReminderScheduler::editReminder(const EventCoreData& event) {
    if (!event.id())
        return;
    center_.getPendingNotificationRequests(
        [this, details = detailsOf(event)](const std::vector<NotificationRequest>& pending) {
            if (find(pending, details.identifier) != nullptr)
                center_.removePendingNotificationRequests({details.identifier});
            add(makeRequest(details, editedReminder), editedReminder);
        });
}

void ReminderScheduler::editTitle(const EventCoreData& event) {
    if (!event.id())
        return;
    center_.getPendingNotificationRequests(
        [this, identifier = event.id()->uuidString(),
         title = event.title().value_or("")](const std::vector<NotificationRequest>& pending) {
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
        if (reminds && parsedDateOf(detailsOf(*event)))
            requests.push_back(makeRequest(detailsOf(*event), restoredEvent));
    }
    center_.getPendingNotificationRequests(
        [this, requests = std::move(requests)](const std::vector<NotificationRequest>& pending) {
            for (const auto& request : requests) {
                if (find(pending, request.identifier) == nullptr)
                    add(request, restoredEvent);
            }
        });
}

void ReminderScheduler::removeReminder(const std::optional<Uuid>& id) {
    if (!id)
        return;
    center_.getPendingNotificationRequests(
        [this, identifier = id->uuidString()](const std::vector<NotificationRequest>& pending) {
            if (find(pending, identifier) == nullptr) {
                console_.print(aboutNotification(identifier, " не найдено"));
                return;
            }
            center_.removePendingNotificationRequests({identifier});
            console_.print(aboutNotification(identifier, " удалено"));
        });
}

ReminderDetails ReminderScheduler::detailsOf(const EventCoreData& event) {
    return {event.id()->uuidString(), {event.title().value_or(""), event.remMess().value_or(""), true},
            event.dateEvent(),        event.timeEvent(),
            event.alertReminder(),    event.repReminder(),
            event.eventType()};
}

ReminderDetails ReminderScheduler::detailsOf(const EventItem& item) {
    return {item.id->uuidString(),
            {item.title.value_or(""), item.remMess.value_or(""), true},
            item.dateEvent,
            item.timeEvent,
            item.alertReminder.value_or(NO_VALUE),
            item.repReminder.value_or(NO_VALUE),
            item.eventType.value_or(false)};
}

std::optional<Instant> ReminderScheduler::parsedDateOf(const ReminderDetails& details) const {
    return tessivo::eventDateOf(details.dateEvent, details.timeEvent, *formatters_.make(fullFormat),
                                *formatters_.make(dateFormat));
}

Instant ReminderScheduler::eventDateOf(const ReminderDetails& details) const {
    const auto date = parsedDateOf(details);
    if (!date)
        console_.stopProgram("The date of an event that reminds cannot be parsed");
    return *date;
}

NotificationRequest ReminderScheduler::makeRequest(const ReminderDetails& details,
                                                   const ReminderSite& site) const {
    const auto eventDate = eventDateOf(details);
    if (details.isFuture) {
        const auto components = alertComponents(eventDate, details.alertReminder, calendar_, console_);
        return {details.identifier, details.content, {components, site.futureRepeats}};
    }
    const auto components =
        repeatComponents(eventDate, details.repReminder, clock_.now(), calendar_, console_);
    return {details.identifier, details.content, {components, site.pastRepeats}};
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
