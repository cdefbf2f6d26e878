#include "freedesktop/ReminderService.h"

#include "freedesktop/BusError.h"
#include "freedesktop/BusNames.h"
#include "freedesktop/ProgramFile.h"
#include "freedesktop/SessionBus.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <utility>

namespace tessivo::freedesktop {
namespace {

constexpr std::uint64_t longestAnswer = 5'000'000; // microseconds

/// Takes the first part off `version`.
int nextPart(std::string_view& version) {
    const auto part = version.substr(0, version.find('.'));
    version.remove_prefix(std::min(part.size() + 1, version.size()));
    int number = 0;
    std::from_chars(part.data(), part.data() + part.size(), number);
    return number;
}

} // namespace

bool isNewerVersion(std::string_view left, std::string_view right) {
    while (!left.empty() || !right.empty()) {
        const int ofLeft = nextPart(left);
        const int ofRight = nextPart(right);
        if (ofLeft != ofRight)
            return ofLeft > ofRight;
    }
    return false;
}

const sd_bus_vtable ReminderService::vtable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("QueueChanged", "", "", ReminderService::queueChanged, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("HandOver", SD_BUS_ARGS("s", version), SD_BUS_RESULT("b", agreed),
                            ReminderService::handOver, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END};

ReminderService::ReminderService(SessionBus& bus, std::string version, Events events)
    : bus_(bus), version_(std::move(version)), events_(std::move(events)) {}

Result<bool> ReminderService::claim() {
    int status = take(object_, [&](auto made) {
        return sd_bus_add_object_vtable(bus_.handle(), made, remindersPath, remindersName, vtable, this);
    });
    if (status >= 0)
        status = take(acquired_, [&](auto made) {
            return sd_bus_match_signal(bus_.handle(), made, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus", "NameAcquired", nameAcquired, this);
        });
    if (status >= 0)
        status = sd_bus_request_name(bus_.handle(), remindersName, 0);
    if (status == -EEXIST) {
        if (!ownerHandsOver())
            return false;
        status = sd_bus_request_name(bus_.handle(), remindersName, SD_BUS_NAME_QUEUE);
    }
    if (status < 0)
        return busError("The place of the reminder helper cannot be had", status);
    return true;
}

bool ReminderService::ownerHandsOver() {
    sd_bus_error error{};
    Owned<sd_bus_message> reply;
    const int status = take(reply, [&](auto made) {
        return sd_bus_call_method(bus_.handle(), remindersName, remindersPath, remindersName, "HandOver",
                                  &error, made, "s", version_.c_str());
    });
    sd_bus_error_free(&error);
    int agrees = 0;
    if (status < 0 || sd_bus_message_read(reply.get(), "b", &agrees) < 0)
        return true; // it is gone, or does not answer: the queue for the name decides
    return agrees != 0;
}

int ReminderService::queueChanged(sd_bus_message* call, void* data, sd_bus_error*) {
    static_cast<ReminderService*>(data)->events_.queueChanged();
    return sd_bus_reply_method_return(call, nullptr);
}

int ReminderService::handOver(sd_bus_message* call, void* data, sd_bus_error*) {
    const auto& service = *static_cast<ReminderService*>(data);
    const char* version = nullptr;
    if (const int status = sd_bus_message_read(call, "s", &version); status < 0)
        return status;
    const bool agrees = isNewerVersion(version, service.version_);
    const int status = sd_bus_reply_method_return(call, "b", agrees);
    if (agrees)
        service.events_.handOver();
    return status;
}

int ReminderService::nameAcquired(sd_bus_message* signal, void* data, sd_bus_error*) {
    const char* name = nullptr;
    if (sd_bus_message_read(signal, "s", &name) >= 0 && std::string_view(name) == remindersName)
        static_cast<ReminderService*>(data)->events_.begun();
    return 0;
}

void tellReminderHelper() {
    Owned<sd_bus> bus;
    if (take(bus, [](auto made) { return sd_bus_open_user(made); }) < 0)
        return;
    sd_bus_set_method_call_timeout(bus.get(), longestAnswer);
    sd_bus_error error{};
    const int status = sd_bus_call_method(bus.get(), remindersName, remindersPath, remindersName,
                                          "QueueChanged", &error, nullptr, "");
    const bool isUnknown = status < 0 && sd_bus_error_has_name(&error, SD_BUS_ERROR_SERVICE_UNKNOWN) != 0;
    sd_bus_error_free(&error);
    if (!isUnknown)
        return;
    if (const auto helper = siblingProgram("tessivo-reminders", "reminders"); !helper.empty())
        (void)startDetached(helper); // a failure cannot be reported; the next change tries again
}

} // namespace tessivo::freedesktop
