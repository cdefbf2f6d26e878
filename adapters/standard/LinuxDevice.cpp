#include "standard/LinuxDevice.h"

#include <sys/utsname.h>

#include <cstdlib>
#include <fstream>
#include <string_view>

namespace tessivo {
namespace {

/// The first line of a small file, up to the first zero byte; empty where it cannot be read.
std::string firstLine(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    if (const auto zero = line.find('\0'); zero != std::string::npos)
        line.erase(zero);
    while (line.ends_with(' '))
        line.pop_back();
    return line;
}

utsname systemNames() {
    utsname names{};
    ::uname(&names);
    return names;
}

/// The value of an assignment in a shell's file, without its quotes.
std::string unquoted(std::string_view value) {
    if (value.size() < 2 || value.front() != value.back() || (value.front() != '"' && value.front() != '\''))
        return std::string(value);
    std::string text;
    const std::string_view inside = value.substr(1, value.size() - 2);
    for (std::size_t i = 0; i < inside.size(); ++i) {
        if (inside[i] == '\\' && value.front() == '"' && i + 1 < inside.size())
            ++i;
        text += inside[i];
    }
    return text;
}

} // namespace

std::string LinuxDevice::modelIdentifier() const {
    for (const char* file : {"proc/device-tree/model", "sys/class/dmi/id/product_name"}) {
        if (const auto name = firstLine(root_ / file); !name.empty())
            return name;
    }
    return systemNames().machine;
}

std::string LinuxDevice::systemVersion() const {
    constexpr std::string_view key = "PRETTY_NAME=";
    for (const char* file : {"etc/os-release", "usr/lib/os-release"}) {
        std::ifstream stream(root_ / file);
        for (std::string line; std::getline(stream, line);) {
            if (line.starts_with(key))
                return unquoted(std::string_view(line).substr(key.size()));
        }
    }
    const utsname names = systemNames();
    return std::string(names.sysname) + " " + names.release;
}

std::optional<std::string> LinuxDevice::simulatedModelIdentifier() const {
    const char* identifier = std::getenv("SIMULATOR_MODEL_IDENTIFIER");
    return identifier ? std::optional<std::string>(identifier) : std::nullopt;
}

} // namespace tessivo
