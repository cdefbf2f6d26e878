#pragma once

#include <QStringList>

class QQuickWindow;

namespace tessivo::tour {

/// What keeps people from using the picture that the window shows: a control that a screen reader has no name
/// for, or one that is too small for a finger. Each fault is a line for the console; none are what we want.
[[nodiscard]] QStringList faultsOf(QQuickWindow& window);

} // namespace tessivo::tour
