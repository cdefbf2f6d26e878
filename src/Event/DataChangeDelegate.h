#pragma once

namespace tessivo {

/// Hears of each write that is on disk; see `CoreDataStack::delegate`.
class DataChangeDelegate {
public:
    virtual ~DataChangeDelegate() = default;

    virtual void dataDidChange() = 0;
};

} // namespace tessivo
