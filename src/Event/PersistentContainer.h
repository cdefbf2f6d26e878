#pragma once

#include "Event/EventContext.h"

#include <string>

namespace tessivo {

class Console;

/// The opened store and the context that looks into it.
class PersistentContainer final {
public:
    /// Loads the store. One that does not load stops the program: going on would show an empty list to
    /// somebody whose events are all there.
    PersistentContainer(std::string name, EventStore& store, Console& console);

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] EventContext& viewContext() { return viewContext_; }

private:
    std::string name_;
    EventContext viewContext_;
};

} // namespace tessivo
