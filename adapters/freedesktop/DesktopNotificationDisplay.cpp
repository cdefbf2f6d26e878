#include "freedesktop/DesktopNotificationDisplay.h"

#include "freedesktop/BusError.h"
#include "freedesktop/BusNames.h"
#include "freedesktop/NoticeText.h"
#include "freedesktop/SessionBus.h"

#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

namespace tessivo::freedesktop {
namespace {

constexpr const char* failed = "The notification cannot be shown";
constexpr std::uint64_t noTimeLimit = UINT64_MAX;
constexpr int desktopDecidesHowLong = -1;

int appendHints(sd_bus_message* message, bool sound) {
    constexpr const char* hints = "a{sv}";
    if (sound)
        return sd_bus_message_append(message, hints, 2, "desktop-entry", "s", applicationId, "sound-name",
                                     "s", "message-new-instant");
    return sd_bus_message_append(message, hints, 2, "desktop-entry", "s", applicationId, "suppress-sound",
                                 "b", 1);
}

bool listsMarkup(sd_bus_message* reply) {
    bool found = false;
    if (sd_bus_message_enter_container(reply, 'a', "s") < 0)
        return false;
    const char* capability = nullptr;
    while (sd_bus_message_read(reply, "s", &capability) > 0)
        found = found || std::string_view(capability) == "body-markup";
    return found;
}

} // namespace

DesktopNotificationDisplay::DesktopNotificationDisplay(SessionBus& bus) : bus_(bus) {
    const auto match = [this](const std::string& rule, sd_bus_message_handler_t handler) {
        take(matches_.emplace_back(), [&](auto made) {
            return sd_bus_add_match_async(bus_.handle(), made, ("type='signal'," + rule).c_str(), handler,
                                          nullptr, this);
        });
    };
    // Narrow rules: what does not match does not wake the process.
    const std::string name = notificationsName;
    match("sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" + name + "'", ownerChanged);
    match("sender='" + name + "',interface='" + name + "',member='ActivationToken'", activationTokenCame);
    match("sender='" + name + "',interface='" + name + "',member='ActionInvoked'", actionWasInvoked);
}

DesktopNotificationDisplay::~DesktopNotificationDisplay() = default;

Subscription DesktopNotificationDisplay::listen(Events events) {
    events_ = std::move(events);
    return Subscription([this] { events_ = {}; });
}

void DesktopNotificationDisplay::show(const Notice& notice, Answer answer) {
    calls_.push_back({this, notice, std::move(answer), nullptr, {}});
    auto& call = calls_.back();
    call.self = std::prev(calls_.end());
    // Fails only when the bus is lost, and then the loop quits.
    take(call.slot, [&](auto made) {
        return sd_bus_call_method_async(bus_.handle(), made, notificationsName, notificationsPath,
                                        notificationsName, "GetCapabilities", capabilitiesCame, &call,
                                        nullptr);
    });
}

int DesktopNotificationDisplay::capabilitiesCame(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& call = *static_cast<Call*>(data);
    if (const auto* error = sd_bus_message_get_error(reply))
        call.display->finish(call, busError(failed, *error));
    else
        call.display->notify(call, listsMarkup(reply));
    return 0;
}

void DesktopNotificationDisplay::notify(Call& call, bool readsMarkup) {
    const auto title = validText(call.notice.title);
    const auto body = validText(call.notice.body);
    Owned<sd_bus_message> message;
    int status = take(message, [&](auto made) {
        return sd_bus_message_new_method_call(bus_.handle(), made, notificationsName, notificationsPath,
                                              notificationsName, "Notify");
    });
    if (status >= 0)
        status = sd_bus_message_append(message.get(), "susssas", "Tessivo", 0U, applicationId, title.c_str(),
                                       (readsMarkup ? escapedMarkup(body) : body).c_str(), 2, "default",
                                       "Tessivo");
    if (status >= 0)
        status = appendHints(message.get(), call.notice.sound);
    if (status >= 0)
        status = sd_bus_message_append(message.get(), "i", desktopDecidesHowLong);
    if (status >= 0)
        status = take(call.slot, [&](auto made) {
            return sd_bus_call_async(bus_.handle(), made, message.get(), notificationCame, &call,
                                     noTimeLimit);
        });
    if (status < 0)
        finish(call, busError(failed, status));
}

int DesktopNotificationDisplay::notificationCame(sd_bus_message* reply, void* data, sd_bus_error*) {
    auto& call = *static_cast<Call*>(data);
    unsigned number = 0;
    if (const auto* error = sd_bus_message_get_error(reply))
        call.display->finish(call, busError(failed, *error));
    else if (const int status = sd_bus_message_read(reply, "u", &number); status < 0)
        call.display->finish(call, busError(failed, status));
    else
        call.display->finish(call, call.display->tokenOf(reply, number));
    return 0;
}

void DesktopNotificationDisplay::finish(Call& call, const Result<std::string>& answer) {
    const auto callback = std::move(call.answer);
    calls_.erase(call.self);
    callback(answer);
}

int DesktopNotificationDisplay::ownerChanged(sd_bus_message* signal, void* data, sd_bus_error*) {
    const char* name = nullptr;
    const char* before = nullptr;
    const char* after = nullptr;
    auto& display = *static_cast<DesktopNotificationDisplay*>(data);
    const bool isRead = sd_bus_message_read(signal, "sss", &name, &before, &after) >= 0;
    if (isRead && *after != '\0' && display.events_.available)
        display.events_.available();
    return 0;
}

int DesktopNotificationDisplay::activationTokenCame(sd_bus_message* signal, void* data, sd_bus_error*) {
    unsigned number = 0;
    const char* permission = nullptr;
    if (sd_bus_message_read(signal, "us", &number, &permission) >= 0)
        static_cast<DesktopNotificationDisplay*>(data)->activation_ = {number, permission};
    return 0;
}

int DesktopNotificationDisplay::actionWasInvoked(sd_bus_message* signal, void* data, sd_bus_error*) {
    unsigned number = 0;
    const char* action = nullptr;
    auto& display = *static_cast<DesktopNotificationDisplay*>(data);
    if (sd_bus_message_read(signal, "us", &number, &action) < 0 || std::string_view(action) != "default")
        return 0;
    const auto [of, permission] = std::exchange(display.activation_, {});
    if (display.events_.opened)
        display.events_.opened(display.tokenOf(signal, number), of == number ? permission : "");
    return 0;
}

std::string DesktopNotificationDisplay::tokenOf(sd_bus_message* message, unsigned number) const {
    const char* sender = sd_bus_message_get_sender(message);
    return bus_.identity() + "/" + (sender != nullptr ? sender : "") + "/" + std::to_string(number);
}

} // namespace tessivo::freedesktop
