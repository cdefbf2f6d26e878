#pragma once

#include <QObject>

namespace tessivo {

/// Whether the program's window is in front. Needs a running QGuiApplication; main thread.
class QtForeground final : public QObject {
public:
    QtForeground();

    /// True while a window of the program is active, and until the desktop has first reported anything.
    [[nodiscard]] bool isActive() const { return active_; }

private:
    bool active_ = true;
};

} // namespace tessivo
