#pragma once

#include "Interface/Geometry.h"
#include "Interface/MainScreen.h"
#include "Support/SharedServices.h"

namespace tessivo {

/// The saved choice of card size. Its absence stops the program: the launch fills it in.
[[nodiscard]] long savedEventSize(const Platform& platform);

/// The size of a card on a screen; zero for a choice that does not exist.
[[nodiscard]] ui::Size cardSize(long eventSize, const ui::MainScreen& screen);

} // namespace tessivo
