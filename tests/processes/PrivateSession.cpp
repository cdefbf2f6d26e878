#include "processes/PrivateSession.h"

#include "freedesktop/Handles.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace tessivo {
namespace {

using freedesktop::Owned;
using freedesktop::take;

constexpr const char* busConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=FOLDER</listen>
  <servicedir>FOLDER</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

/// The first line of output of a program that keeps running.
std::string firstLine(Process& process, const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    process = Process(command, ends[1]);
    ::close(ends[1]);
    std::string line;
    for (char character = 0; ::read(ends[0], &character, 1) == 1 && character != '\n';)
        line += character;
    ::close(ends[0]);
    return line;
}

/// The bus's own answer; null where it gives none.
Owned<sd_bus_message> callBus(const char* method, const char* argument) {
    Owned<sd_bus> bus;
    if (take(bus, [](auto made) { return sd_bus_open_user(made); }) < 0)
        return nullptr;
    constexpr const char* name = "org.freedesktop.DBus";
    Owned<sd_bus_message> reply;
    take(reply, [&](auto made) {
        return sd_bus_call_method(bus.get(), name, "/org/freedesktop/DBus", name, method, nullptr, made,
                                  argument != nullptr ? "s" : "", argument);
    });
    return reply;
}

bool isInstalled(const char* program) {
    return !outputOf({"which", program}).empty();
}

} // namespace

bool PrivateSession::isPossible() {
    return isInstalled("dbus-daemon") && isInstalled("Xvfb") && isInstalled("dunst");
}

PrivateSession::PrivateSession() {
    ::setenv("XDG_DATA_HOME", folder_.path().c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1);
    startBus();
    startDisplay();
}

void PrivateSession::startBus() {
    const auto file = folder_ / "bus.conf";
    std::string configuration = busConfiguration;
    for (const std::string_view place : {"FOLDER", "FOLDER"})
        configuration.replace(configuration.find(place), place.size(), folder_.path().string());
    std::ofstream(file) << configuration;
    const auto address =
        firstLine(bus_, {"dbus-daemon", "--nofork", "--print-address", "--config-file=" + file.string()});
    ::setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
}

void PrivateSession::startDisplay() {
    const auto number =
        firstLine(display_, {"Xvfb", "-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
    ::setenv("DISPLAY", (":" + number).c_str(), 1);
}

void PrivateSession::startDaemon() {
    daemon_ = Process({"dunst"});
    if (!eventually([] { return isOnBus("org.freedesktop.Notifications"); }))
        throw std::runtime_error("The notification daemon does not come up");
}

bool PrivateSession::isOnBus(const std::string& name) {
    int has = 0;
    const auto reply = callBus("NameHasOwner", name.c_str());
    return reply && sd_bus_message_read(reply.get(), "b", &has) >= 0 && has != 0;
}

std::string PrivateSession::ownerOf(const std::string& name) {
    const char* owner = nullptr;
    const auto reply = callBus("GetNameOwner", name.c_str());
    return reply && sd_bus_message_read(reply.get(), "s", &owner) >= 0 ? owner : "";
}

void PrivateSession::addService(const std::string& name, const std::string& program) {
    std::ofstream(folder_ / "added.service")
        << "[D-BUS Service]\nName=" << name << "\nExec=" << program << '\n';
    (void)callBus("ReloadConfig", nullptr);
}

bool PrivateSession::hasShown(const std::string& title, const std::string& body) const {
    (void)outputOf({"dunstctl", "close-all"}); // only what is closed is in the history
    const auto history = outputOf({"dunstctl", "history"});
    return history.find("\"data\" : \"" + title + "\"") != std::string::npos &&
           history.find("\"data\" : \"" + body + "\"") != std::string::npos;
}

} // namespace tessivo
