#include "freedesktop/BusAppActivation.h"

#include "Ports/Console.h"
#include "freedesktop/BusError.h"
#include "freedesktop/BusNames.h"
#include "freedesktop/ProgramFile.h"
#include "freedesktop/SessionBus.h"

#include <cstdint>
#include <utility>

namespace tessivo::freedesktop {
namespace {

constexpr const char* failed = "The program cannot be opened";
constexpr std::uint64_t defaultTimeout = 0;

int appendRequest(sd_bus_message* message, const std::string& activation,
                  const std::optional<std::string>& event) {
    int status = 0;
    if (event)
        status = sd_bus_message_append(message, "sav", showEventAction, 1, "s", event->c_str());
    if (status < 0)
        return status;
    // Older desktops know the permission by the second key.
    return sd_bus_message_append(message, "a{sv}", activation.empty() ? 0 : 2, "activation-token", "s",
                                 activation.c_str(), "desktop-startup-id", "s", activation.c_str());
}

} // namespace

BusAppActivation::BusAppActivation(SessionBus& bus, Console& console, std::filesystem::path program)
    : bus_(bus), console_(console), program_(std::move(program)) {
    const auto rule = std::string("type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',"
                                  "arg0='") +
                      applicationId + "'";
    take(nameMatch_, [&](auto made) {
        return sd_bus_add_match_async(bus_.handle(), made, rule.c_str(), ownerChanged, nullptr, this);
    });
}

void BusAppActivation::activate(const std::string& activation, const std::optional<std::string>& event) {
    last_ = {activation, event};
    call(last_);
}

void BusAppActivation::call(const Request& request) {
    Owned<sd_bus_message> message;
    int status = take(message, [&](auto made) {
        return sd_bus_message_new_method_call(bus_.handle(), made, applicationId, applicationPath,
                                              "org.freedesktop.Application",
                                              request.event ? "ActivateAction" : "Activate");
    });
    if (status >= 0)
        status = appendRequest(message.get(), request.activation, request.event);
    if (status >= 0)
        status = take(answer_, [&](auto made) {
            return sd_bus_call_async(bus_.handle(), made, message.get(), answerCame, this, defaultTimeout);
        });
    if (status < 0)
        console_.print(busError(failed, status).description);
}

int BusAppActivation::answerCame(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& self = *static_cast<BusAppActivation*>(data);
    const auto* error = sd_bus_message_get_error(reply);
    if (error == nullptr)
        return 0;
    if (sd_bus_error_has_name(error, SD_BUS_ERROR_SERVICE_UNKNOWN) != 0 && !self.program_.empty())
        self.startProgram();
    else
        self.console_.print(busError(failed, *error).description);
    return 0;
}

void BusAppActivation::startProgram() {
    if (const auto error = startDetached(program_))
        console_.print(error->description);
    else
        isStarting_ = true;
}

int BusAppActivation::ownerChanged(sd_bus_message* signal, void* data, sd_bus_error*) {
    const char* name = nullptr;
    const char* before = nullptr;
    const char* after = nullptr;
    auto& self = *static_cast<BusAppActivation*>(data);
    const bool isRead = sd_bus_message_read(signal, "sss", &name, &before, &after) >= 0;
    if (isRead && *after != '\0' && std::exchange(self.isStarting_, false))
        self.call(self.last_);
    return 0;
}

} // namespace tessivo::freedesktop
