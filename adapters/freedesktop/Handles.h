#pragma once

#include <systemd/sd-bus.h>
#include <systemd/sd-event.h>

#include <memory>

namespace tessivo::freedesktop {

/// Releases what libsystemd has handed out.
struct Unref {
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
    void operator()(sd_event* event) const { sd_event_unref(event); }
    void operator()(sd_event_source* source) const { sd_event_source_disable_unref(source); }
};

template <class Handle>
using Owned = std::unique_ptr<Handle, Unref>;

/// Takes what a function of libsystemd puts into its out-parameter, on success only: `make` gets the address.
template <class Handle, class Make>
int take(Owned<Handle>& owned, Make make) {
    Handle* made = nullptr;
    const int status = make(&made);
    if (status >= 0)
        owned.reset(made);
    return status;
}

} // namespace tessivo::freedesktop
