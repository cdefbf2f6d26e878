#include "Event/EventCoreData.h"

#include "Event/EventContext.h"

namespace tessivo {

EventCoreData::~EventCoreData() {
    if (context_ != nullptr)
        context_->forget(*this);
}

template <class Value>
void EventCoreData::write(EventAttribute attribute, Value EventRecord::*field, Value value) {
    values_.*field = std::move(value);
    if (context_ == nullptr)
        return;
    if (changed_.none())
        context_->willChange(*this);
    changed_.set(static_cast<std::size_t>(attribute));
}

void EventCoreData::setTitle(std::optional<std::string> title) {
    write(EventAttribute::title, &EventRecord::title, std::move(title));
}

void EventCoreData::setDateEvent(std::optional<std::string> dateEvent) {
    write(EventAttribute::dateEvent, &EventRecord::dateEvent, std::move(dateEvent));
}

void EventCoreData::setTimeEvent(std::optional<std::string> timeEvent) {
    write(EventAttribute::timeEvent, &EventRecord::timeEvent, std::move(timeEvent));
}

void EventCoreData::setRepEvent(std::int16_t repEvent) {
    write(EventAttribute::repEvent, &EventRecord::repEvent, repEvent);
}

void EventCoreData::setAlertReminder(std::int16_t alertReminder) {
    write(EventAttribute::alertReminder, &EventRecord::alertReminder, alertReminder);
}

void EventCoreData::setRepReminder(std::int16_t repReminder) {
    write(EventAttribute::repReminder, &EventRecord::repReminder, repReminder);
}

void EventCoreData::setRemMess(std::optional<std::string> remMess) {
    write(EventAttribute::remMess, &EventRecord::remMess, std::move(remMess));
}

void EventCoreData::setTimeFormat(std::int16_t timeFormat) {
    write(EventAttribute::timeFormat, &EventRecord::timeFormat, timeFormat);
}

void EventCoreData::setColor(std::int16_t color) {
    write(EventAttribute::color, &EventRecord::color, color);
}

void EventCoreData::setGradient(std::int16_t gradient) {
    write(EventAttribute::gradient, &EventRecord::gradient, gradient);
}

void EventCoreData::setPhotoPath(std::optional<std::string> photoPath) {
    write(EventAttribute::photoPath, &EventRecord::photoPath, std::move(photoPath));
}

void EventCoreData::setUnsplashPath(std::optional<std::string> unsplashPath) {
    write(EventAttribute::unsplashPath, &EventRecord::unsplashPath, std::move(unsplashPath));
}

void EventCoreData::setEventType(bool eventType) {
    write(EventAttribute::eventType, &EventRecord::eventType, eventType);
}

} // namespace tessivo
