#pragma once

#include <functional>

namespace tessivo {
class MainQueue;
class TextMeasuring;
} // namespace tessivo

namespace tessivo::ui {
class Animations;
}

namespace tessivo::swipe {

class ImpactGenerator;

/// What the engine asks of the program around it. The parts outlive every cell.
struct SwipeEnvironment {
    ui::Animations& animations;
    MainQueue& mainQueue;
    const TextMeasuring& texts;
    ImpactGenerator* impactGenerator = nullptr;  ///< null where the machine has none
    std::function<bool()> isScreenReaderRunning; ///< empty for never

    [[nodiscard]] bool screenReaderRuns() const { return isScreenReaderRunning && isScreenReaderRunning(); }
};

} // namespace tessivo::swipe
