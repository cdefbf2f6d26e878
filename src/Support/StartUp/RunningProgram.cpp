#include "Support/StartUp/RunningProgram.h"

namespace tessivo {

RunningProgram::RunningProgram(const Platform& platform, FrameClock& frameClock, ui::MainScreen& screen)
    : animations_(frameClock, platform.timers),
      window_{screen, animations_},
      services_(platform, window_, screens_) {
    screens_.use(services_);
    const auto follow = [this] { animations_.setReducedMotion(window_.screen.preferences().reducedMotion); };
    follow();
    preferences_ = screen.onPreferencesChange(follow);
}

void RunningProgram::launch() {
    appDelegate_.didFinishLaunching(stack_);
}

} // namespace tessivo
