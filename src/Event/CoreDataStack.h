#pragma once

#include "Event/EventContext.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tessivo {

class Console;
class DataChangeDelegate;
class PersistentContainer;
struct EventItem;

/// All operations on stored events. One stack is shared and makes every change; a screen that only reads may
/// have one of its own, which sees what the shared one has saved. Making a stack costs nothing: the store is
/// opened at the first operation.
///
/// Updates and deletes go to the first row of that `id`; where there is none, or the store cannot be read,
/// they do nothing. A failed save is logged to the console as "Error: " and the store's message; the change
/// stays in the stack, unsaved. Main thread only. Store and console must outlive the stack.
class CoreDataStack final {
public:
    CoreDataStack(EventStore& store, Console& console);
    CoreDataStack(const CoreDataStack&) = delete;
    CoreDataStack& operator=(const CoreDataStack&) = delete;
    ~CoreDataStack();

    /// Called once for each write of this stack, after it is on disk.
    std::weak_ptr<DataChangeDelegate> delegate;

    /// Called at the end of each save with the event it was for, and with the error if it failed.
    std::function<void(const std::shared_ptr<EventCoreData>&, const Outcome&)> saveListener;

    /// Loads the store at the first call; a store that does not load stops the program.
    [[nodiscard]] PersistentContainer& persistentContainer();
    [[nodiscard]] EventContext& viewContext();

    /// Adds a row with the values of the draft. A draft without one of `repEvent`, `alertReminder`,
    /// `repReminder`, `timeFormat`, `color`, `gradient` and `eventType` stops the program.
    void addEvent(const EventItem& item);

    void updateTitle(const Uuid& id, const std::string& title);
    void updateDate(const Uuid& id, const std::string& dateEvent);

    /// An absent text clears its attribute.
    void updateDateAndTime(const Uuid& id, const std::optional<std::string>& dateEvent,
                           const std::optional<std::string>& timeEvent, std::int16_t timeFormat,
                           std::int16_t repEvent, bool eventType);
    void updateReminder(const Uuid& id, const std::optional<std::string>& remMess, std::int16_t alertReminder,
                        std::int16_t repReminder);
    void updateBackground(const Uuid& id, std::int16_t color, std::int16_t gradient,
                          const std::optional<std::string>& unsplashPath,
                          const std::optional<std::string>& photoPath);

    /// All rows in the order of the store; none where it cannot be read.
    [[nodiscard]] EventRows fetchEvents();

    /// The row of that `id`, never null. Its absence stops the program: ask only for what was just read.
    [[nodiscard]] std::shared_ptr<EventCoreData> fetchEvent(const Uuid& id);

    void deleteEvent(const Uuid& id);

    /// Saves all changes that are not saved yet, on behalf of `event`. The operations above do this
    /// themselves; it is for what they could not save.
    void save(const std::shared_ptr<EventCoreData>& event);

private:
    [[nodiscard]] std::shared_ptr<EventCoreData> firstRow(const Uuid& id);

    EventStore& store_;
    Console& console_;
    std::unique_ptr<PersistentContainer> persistentContainer_;
};

} // namespace tessivo
