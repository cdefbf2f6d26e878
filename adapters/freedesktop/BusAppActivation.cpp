#include "freedesktop/BusAppActivation.h"

#include "Ports/Console.h"
#include "freedesktop/BusError.h"
#include "freedesktop/BusNames.h"
#include "freedesktop/SessionBus.h"

namespace tessivo::freedesktop {
namespace {

int answerCame(sd_bus_message* reply, void* data, sd_bus_error*) {
    if (const auto* error = sd_bus_message_get_error(reply))
        static_cast<Console*>(data)->print(busError("The program cannot be opened", *error).description);
    return 0;
}

} // namespace

void BusAppActivation::activate(const std::string& activation) {
    const int keys = activation.empty() ? 0 : 2;
    // Older desktops know the permission by the second key.
    const int status = sd_bus_call_method_async(
        bus_.handle(), nullptr, applicationId, applicationPath, "org.freedesktop.Application", "Activate",
        answerCame, &console_, "a{sv}", keys, "activation-token", "s", activation.c_str(),
        "desktop-startup-id", "s", activation.c_str());
    if (status < 0)
        console_.print(busError("The program cannot be opened", status).description);
}

} // namespace tessivo::freedesktop
