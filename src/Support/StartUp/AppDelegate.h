#pragma once

namespace tessivo {

class SharedServices;

namespace ui {
class PresentationStack;
}

/// The start of the program.
class AppDelegate {
public:
    explicit AppDelegate(SharedServices& services) : services_(services) {}

    /// Fills absent settings, counts the launch, runs the first pass over the events and shows the first
    /// screen in `window`. Called once.
    void didFinishLaunching(ui::PresentationStack& window);

private:
    void fillAbsentSettings();
    void countLaunch();

    SharedServices& services_;
};

} // namespace tessivo
