#pragma once

#include "Ports/Error.h"

#include <systemd/sd-bus.h>

#include <cstring>
#include <string>

namespace tessivo::freedesktop {

/// A failure of libsystemd, which speaks in negative error numbers.
inline Error busError(const std::string& what, int status) {
    return {"D-Bus", -status, what + ": " + std::strerror(-status)};
}

/// A failure that the other side has reported.
inline Error busError(const std::string& what, const sd_bus_error& error) {
    return {"D-Bus", sd_bus_error_get_errno(&error),
            what + ": " + (error.message != nullptr ? error.message : error.name)};
}

} // namespace tessivo::freedesktop
