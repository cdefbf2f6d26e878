#pragma once

namespace tessivo {

/// What the desktop's user asks of every program.
struct UserPreferences {
    bool reducedMotion = false; ///< nothing slides, springs or fades
    bool highContrast = false;
    bool screenReader = false; ///< one is running
    double textScale = 1;      ///< how much larger than usual all letters are, from 0.8 to 2

    friend bool operator==(const UserPreferences&, const UserPreferences&) = default;
};

} // namespace tessivo
