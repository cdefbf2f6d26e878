#include "MainVC/CardSize.h"

#include "Ports/Console.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"

#include <array>

namespace tessivo {
namespace {

constexpr double widthDivisor = 1.1;
constexpr std::array heightDivisors{4.6136, 4.06, 3.5};

} // namespace

long savedEventSize(const Platform& platform) {
    if (const auto size = platform.settings.integer(settingKeys::eventSize))
        return *size;
    platform.console.stopProgram("The card size is not set.");
}

ui::Size cardSize(long eventSize, const ui::MainScreen& screen) {
    if (eventSize < 0 || static_cast<std::size_t>(eventSize) >= heightDivisors.size())
        return {};
    return {screen.width() / widthDivisor,
            screen.height() / heightDivisors[static_cast<std::size_t>(eventSize)]};
}

} // namespace tessivo
