#pragma once

#include <QObject>

#include <memory>

class QQuickWindow;

namespace tessivo {

class Console;
class NamedColors;

namespace ui {
class PresentationStack;
}

namespace shell {

class QuickSnapshots;

/// The window: draws the screens of a stack and hands the user's touches and keys to them. One per program,
/// on the main thread. All that it is made of outlives it.
class Shell {
public:
    /// The window's drawings enter themselves at `snapshots`.
    Shell(ui::PresentationStack& stack, const NamedColors& colors, Console& console,
          QuickSnapshots& snapshots);
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    ~Shell();

    /// Opens the window. A drawing that does not load stops the program.
    void open();

    /// The window while it is open; null before.
    [[nodiscard]] QQuickWindow* window() const;

    /// Brings the window to the front. `activationToken` is the desktop's permission to do so, where it gave
    /// one.
    void raise(const QString& activationToken);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace shell
} // namespace tessivo
