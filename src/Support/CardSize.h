#pragma once

#include "Interface/Geometry.h"
#include "Interface/MainScreen.h"
#include "Support/Platform.h"

namespace tessivo {

/// What the saved choice of card size decides.
struct EventSize {
    double heightDivisor; ///< of the screen's height
    double swipeButtonWidth;
    const char* editImage;
    const char* deleteImage;
    const char* shareImage;
};

/// The choice of the user; null for a choice that does not exist. The absence of a choice stops the program:
/// the launch fills it in.
[[nodiscard]] const EventSize* savedEventSize(const Platform& platform);

/// The size of a card on a screen; zero for a choice that does not exist.
[[nodiscard]] ui::Size cardSize(const EventSize* choice, const ui::MainScreen& screen);

} // namespace tessivo
