#pragma once

#include "Ports/EventStore.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tessivo {

class EventContext;

/// One stored event, as its context knows it. Writing an attribute changes the object at once and the store
/// at the context's next save; an object whose context is gone, or whose row was deleted, keeps its values
/// and is saved by nobody.
///
/// At most one background is effective: `color`, else `gradient`, each unless `NO_VALUE`, else `photoPath`,
/// else `unsplashPath`. An event without `timeEvent` lasts all day.
class EventCoreData final : public std::enable_shared_from_this<EventCoreData> {
public:
    /// An event of no context.
    explicit EventCoreData(EventRecord values = {}) : values_(std::move(values)) {}
    EventCoreData(const EventCoreData&) = delete;
    EventCoreData& operator=(const EventCoreData&) = delete;
    ~EventCoreData();

    [[nodiscard]] const EventRecord& values() const { return values_; }

    [[nodiscard]] const std::optional<std::string>& title() const { return values_.title; }
    /// The date as text, "dd MMMM yyyy" in the language of the day on which it was written.
    [[nodiscard]] const std::optional<std::string>& dateEvent() const { return values_.dateEvent; }
    /// The time of day as text, "h:mm a".
    [[nodiscard]] const std::optional<std::string>& timeEvent() const { return values_.timeEvent; }
    [[nodiscard]] std::int16_t repEvent() const { return values_.repEvent; }
    [[nodiscard]] std::int16_t alertReminder() const { return values_.alertReminder; }
    [[nodiscard]] std::int16_t repReminder() const { return values_.repReminder; }
    [[nodiscard]] const std::optional<std::string>& remMess() const { return values_.remMess; }
    [[nodiscard]] std::int16_t timeFormat() const { return values_.timeFormat; }
    [[nodiscard]] std::int16_t color() const { return values_.color; }
    [[nodiscard]] std::int16_t gradient() const { return values_.gradient; }
    /// A URI, as text.
    [[nodiscard]] const std::optional<std::string>& photoPath() const { return values_.photoPath; }
    [[nodiscard]] const std::optional<std::string>& unsplashPath() const { return values_.unsplashPath; }
    /// True is Future, false is Past.
    [[nodiscard]] bool eventType() const { return values_.eventType; }
    /// Given with the row, and never changed.
    [[nodiscard]] const std::optional<Uuid>& id() const { return values_.id; }

    void setTitle(std::optional<std::string> title);
    void setDateEvent(std::optional<std::string> dateEvent);
    void setTimeEvent(std::optional<std::string> timeEvent);
    void setRepEvent(std::int16_t repEvent);
    void setAlertReminder(std::int16_t alertReminder);
    void setRepReminder(std::int16_t repReminder);
    void setRemMess(std::optional<std::string> remMess);
    void setTimeFormat(std::int16_t timeFormat);
    void setColor(std::int16_t color);
    void setGradient(std::int16_t gradient);
    void setPhotoPath(std::optional<std::string> photoPath);
    void setUnsplashPath(std::optional<std::string> unsplashPath);
    void setEventType(bool eventType);

    /// Whether a save of the context would write this object.
    [[nodiscard]] bool hasChanges() const { return changed_.any(); }

private:
    friend class EventContext;

    template <class Value>
    void write(EventAttribute attribute, Value EventRecord::*field, Value value);

    EventRecord values_;
    EventAttributes changed_;
    RowKey key_ = 0;                  ///< 0 until the first save
    EventContext* context_ = nullptr; ///< null from when the context lets go of the object
    bool deleted_ = false;
};

} // namespace tessivo
