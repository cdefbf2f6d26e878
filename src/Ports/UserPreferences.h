#pragma once

namespace tessivo {

/// What the desktop's user asks of every program.
struct UserPreferences {
    bool reducedMotion = false; ///< nothing slides, springs or fades
    bool highContrast = false;
    bool screenReader = false; ///< one is running

    friend bool operator==(const UserPreferences&, const UserPreferences&) = default;
};

} // namespace tessivo
