#include "Support/CardSize.h"

#include "Ports/Console.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"

#include <array>

namespace tessivo {
namespace {

constexpr double widthDivisor = 1.1;

constexpr std::array eventSizes{
    EventSize{4.6136, 52, "editSmall", "DeleteSmall", "shareSmall"},
    EventSize{4.06, 60, "editLarge", "DeleteLarge", "shareLarge"},
    EventSize{3.5, 68, "editBig", "DeleteBig", "shareBig"},
};

} // namespace

const EventSize* savedEventSize(const Platform& platform) {
    const auto choice = platform.settings.integer(settingKeys::eventSize);
    if (!choice)
        platform.console.stopProgram("The card size is not set.");
    if (*choice < 0 || static_cast<std::size_t>(*choice) >= eventSizes.size())
        return nullptr;
    return &eventSizes[static_cast<std::size_t>(*choice)];
}

ui::Size cardSize(const EventSize* choice, const ui::MainScreen& screen) {
    if (!choice)
        return {};
    return {screen.width() / widthDivisor, screen.height() / choice->heightDivisor};
}

} // namespace tessivo
