#pragma once

#include <chrono>
#include <functional>

/// The main thread's time, moved by hand, for a real window. Linking this replaces the C library's clock:
/// once started, everything on the main thread that reads a clock or sleeps (Qt's timers and animations, the
/// time stamps of touches, the program's own ports) sees a time that only `step` and sleeping move. All other
/// threads keep real time, and so do waits for a file descriptor or a condition.
namespace tessivo::virtualtime {

/// How far one step goes: a frame of a display.
inline constexpr std::chrono::milliseconds stepLength{16};

/// From now on the calling thread's time is virtual. Called first in `main`, so that nothing has read the
/// real clock before.
void start();

/// Handles the events that are due, and moves time on by one step.
void step();

/// As many steps as `span` takes.
void pass(std::chrono::milliseconds span);

/// Steps until `done`, and leaves other threads the real time that they need on the way. False where that has
/// not come about before a bound of real time that only a fault reaches.
[[nodiscard]] bool runUntil(const std::function<bool()>& done);

} // namespace tessivo::virtualtime
