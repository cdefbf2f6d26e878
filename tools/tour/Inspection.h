#pragma once

#include <QStringList>

class QQuickWindow;

namespace tessivo::tour {

/// What makes the screen hard to use: controls without an accessible name, and controls too small for a
/// finger. One line per fault; empty if all is well.
[[nodiscard]] QStringList faultsOf(QQuickWindow& window);

} // namespace tessivo::tour
