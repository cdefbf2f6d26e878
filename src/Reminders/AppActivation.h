#pragma once

#include <string>

namespace tessivo {

/// The way to the program itself. Main thread.
class AppActivation {
public:
    virtual ~AppActivation() = default;

    /// Brings the program's window to the front, and starts the program where it does not run. `activation`
    /// is the desktop's permission to do so, as the display handed it over. Returns at once; failure goes to
    /// the console.
    virtual void activate(const std::string& activation) = 0;
};

} // namespace tessivo
