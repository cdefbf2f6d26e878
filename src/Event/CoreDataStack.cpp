#include "Event/CoreDataStack.h"

#include "Event/DataChangeDelegate.h"
#include "Event/EventItem.h"
#include "Event/PersistentContainer.h"
#include "Ports/Console.h"

#include <utility>

namespace tessivo {
namespace {

std::string predicateOf(const Uuid& id) {
    return "id = \"" + id.uuidString() + "\"";
}

/// The first of the attributes that a row cannot do without and the draft lacks; null for none.
const char* missingIn(const EventItem& item) {
    const std::pair<bool, const char*> required[] = {{item.repEvent.has_value(), "repEvent"},
                                                     {item.alertReminder.has_value(), "alertReminder"},
                                                     {item.repReminder.has_value(), "repReminder"},
                                                     {item.timeFormat.has_value(), "timeFormat"},
                                                     {item.color.has_value(), "color"},
                                                     {item.gradient.has_value(), "gradient"},
                                                     {item.eventType.has_value(), "eventType"}};
    for (const auto& [isThere, attribute] : required) {
        if (!isThere)
            return attribute;
    }
    return nullptr;
}

} // namespace

CoreDataStack::CoreDataStack(EventStore& store, Console& console) : store_(store), console_(console) {}

CoreDataStack::~CoreDataStack() = default;

PersistentContainer& CoreDataStack::persistentContainer() {
    if (!persistentContainer_)
        persistentContainer_ = std::make_unique<PersistentContainer>("Tessivo", store_, console_);
    return *persistentContainer_;
}

EventContext& CoreDataStack::viewContext() {
    return persistentContainer().viewContext();
}

void CoreDataStack::addEvent(const EventItem& item) {
    if (const char* attribute = missingIn(item))
        console_.stopProgram(std::string("The event to be added has no ") + attribute);
    save(viewContext().insert(recordOf(item)));
}

void CoreDataStack::updateTitle(const Uuid& id, const std::string& title) {
    const auto event = firstRow(id);
    if (!event)
        return;
    event->setTitle(title);
    save(event);
}

void CoreDataStack::updateDate(const Uuid& id, const std::string& dateEvent) {
    const auto event = firstRow(id);
    if (!event)
        return;
    event->setDateEvent(dateEvent);
    save(event);
}

void CoreDataStack::updateDateAndTime(const Uuid& id, const std::optional<std::string>& dateEvent,
                                      const std::optional<std::string>& timeEvent, std::int16_t timeFormat,
                                      std::int16_t repEvent, bool eventType) {
    const auto event = firstRow(id);
    if (!event)
        return;
    event->setDateEvent(dateEvent);
    event->setTimeEvent(timeEvent);
    event->setTimeFormat(timeFormat);
    event->setRepEvent(repEvent);
    event->setEventType(eventType);
    save(event);
}

void CoreDataStack::updateReminder(const Uuid& id, const std::optional<std::string>& remMess,
                                   std::int16_t alertReminder, std::int16_t repReminder) {
    const auto event = firstRow(id);
    if (!event)
        return;
    event->setRemMess(remMess);
    event->setAlertReminder(alertReminder);
    event->setRepReminder(repReminder);
    save(event);
}

void CoreDataStack::updateBackground(const Uuid& id, std::int16_t color, std::int16_t gradient,
                                     const std::optional<std::string>& unsplashPath,
                                     const std::optional<std::string>& photoPath) {
    const auto event = firstRow(id);
    if (!event)
        return;
    event->setColor(color);
    event->setGradient(gradient);
    event->setUnsplashPath(unsplashPath);
    event->setPhotoPath(photoPath);
    save(event);
}

EventRows CoreDataStack::fetchEvents() {
    auto rows = viewContext().fetch();
    return rows ? std::move(rows.value()) : EventRows();
}

std::shared_ptr<EventCoreData> CoreDataStack::fetchEvent(const Uuid& id) {
    auto event = firstRow(id);
    if (!event)
        console_.stopProgram("There is no event with " + predicateOf(id));
    return event;
}

void CoreDataStack::deleteEvent(const Uuid& id) {
    const auto event = firstRow(id);
    if (!event)
        return;
    viewContext().deleteObject(*event);
    save(event);
}

std::shared_ptr<EventCoreData> CoreDataStack::firstRow(const Uuid& id) {
    auto rows = viewContext().fetch(predicateOf(id));
    return rows && !rows.value().empty() ? rows.value().front() : nullptr;
}

void CoreDataStack::save(const std::shared_ptr<EventCoreData>& event) {
    const auto error = viewContext().save();
    if (error)
        console_.print("Error: " + error->description);
    else if (const auto listener = delegate.lock())
        listener->dataDidChange();
    if (saveListener)
        saveListener(event, error);
}

} // namespace tessivo
