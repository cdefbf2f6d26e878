#pragma once

#include "Ports/Timers.h"

namespace tessivo {

/// Timers on Qt's event loop. The thread that makes them must run one.
class QtTimers final : public Timers {
public:
    Subscription once(Seconds delay, std::function<void()> fire) override;
    Subscription repeating(Seconds interval, std::function<void()> fire) override;
};

} // namespace tessivo
