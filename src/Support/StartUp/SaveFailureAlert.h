#pragma once

#include "Ports/Error.h"

#include <memory>
#include <set>
#include <string>

namespace tessivo {

class CoreDataStack;
class EventCoreData;
class LocalizedTexts;
class PendingScreens;

namespace ui {
struct WindowContext;
}

/// Tells the user of a change that could not be saved, by the event's title, and lets them try again. A
/// change that keeps failing, like each minute's on a full disk, is reported once until something has been
/// saved.
class SaveFailureAlert final {
public:
    /// Listens to `events`. All of these outlive the alert.
    SaveFailureAlert(CoreDataStack& events, PendingScreens& pending, ui::WindowContext& window,
                     const LocalizedTexts& texts);
    SaveFailureAlert(const SaveFailureAlert&) = delete;
    SaveFailureAlert& operator=(const SaveFailureAlert&) = delete;
    ~SaveFailureAlert();

private:
    void tell(const std::shared_ptr<EventCoreData>& event, const Error& error);

    CoreDataStack& events_;
    PendingScreens& pending_;
    ui::WindowContext& window_;
    const LocalizedTexts& texts_;
    std::set<std::string> reported_; ///< titles
};

} // namespace tessivo
