#include "freedesktop/SessionBus.h"

#include "freedesktop/BusError.h"
#include "freedesktop/EventLoop.h"

#include <systemd/sd-id128.h>

#include <array>

namespace tessivo::freedesktop {

Result<SessionBus> SessionBus::open(EventLoop& loop) {
    Owned<sd_bus> bus;
    int status = take(bus, [](auto made) { return sd_bus_open_user(made); });
    if (status >= 0)
        status = sd_bus_attach_event(bus.get(), loop.handle(), SD_EVENT_PRIORITY_NORMAL);
    if (status >= 0)
        status = sd_bus_set_exit_on_disconnect(bus.get(), 1);
    if (status < 0)
        return busError("There is no session bus", status);
    return SessionBus(std::move(bus));
}

std::string SessionBus::identity() const {
    sd_id128_t identity{};
    if (sd_bus_get_bus_id(bus_.get(), &identity) < 0)
        return {};
    std::array<char, SD_ID128_STRING_MAX> text{};
    return sd_id128_to_string(identity, text.data());
}

} // namespace tessivo::freedesktop
