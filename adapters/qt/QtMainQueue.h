#pragma once

#include "Ports/MainQueue.h"

#include <QObject>

namespace tessivo {

/// The event loop of the thread that makes it.
class QtMainQueue final : public MainQueue {
public:
    void post(std::function<void()> work) override;

private:
    QObject target_; ///< lives on the main thread; work that waits goes with it
};

} // namespace tessivo
