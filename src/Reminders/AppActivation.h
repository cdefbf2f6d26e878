#pragma once

#include <optional>
#include <string>

namespace tessivo {

/// The way from the helper to the program itself. Main thread.
class AppActivation {
public:
    virtual ~AppActivation() = default;

    /// Brings the program's window to the front, with the event of that identifier in view if there is one,
    /// and starts the program where it does not run. `activation` is the desktop's permission to do so, as
    /// the display handed it over. Returns at once; failure goes to the console.
    virtual void activate(const std::string& activation, const std::optional<std::string>& event) = 0;
};

} // namespace tessivo
