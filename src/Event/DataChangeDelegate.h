#pragma once

namespace tessivo {

/// Called after each write is on disk; see `CoreDataStack::delegate`.
class DataChangeDelegate {
public:
    virtual ~DataChangeDelegate() = default;

    virtual void dataDidChange() = 0;
};

} // namespace tessivo
