#pragma once

#include "Interface/Text.h"

#include <QColor>

namespace tessivo {
class Console;
}

namespace tessivo::shell {

class QuickSnapshots;

/// What all bridge objects of a window draw on. Outlives them.
struct BridgeContext {
    const NamedColors& colors;
    Console& console;
    QuickSnapshots& snapshots;

    /// The colour to paint with; transparent where there is none, or none of that name.
    [[nodiscard]] QColor color(const ui::ColorRef& color) const;
};

[[nodiscard]] QColor toQColor(const Color& color);

} // namespace tessivo::shell
