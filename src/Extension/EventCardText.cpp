#include "Extension/EventCardText.h"

namespace tessivo {

ui::StyledText makeEventCardText(std::string_view lower, std::string_view upper,
                                 const ui::MainScreen& screen) {
    const ui::Font upperFont{screen.isLarge() ? 30.0 : 22.0, ui::FontWeight::Semibold};
    const ui::Font lowerFont{screen.isLarge() ? 24.0 : 17.0, ui::FontWeight::Regular};
    return {{{std::string(upper) + "\n", upperFont, ui::ColorRef::white()},
             {std::string(lower), lowerFont, ui::ColorRef::white()}}};
}

ui::StyledText makeCounterText(std::string_view words, std::size_t count, int limit) {
    constexpr ui::Font font{15, ui::FontWeight::Regular};
    const auto color = ui::ColorRef::named("disabled");
    return {{{std::string(words), font, color},
             {std::to_string(count), font, color},
             {"/" + std::to_string(limit) + ")", font, color}}};
}

} // namespace tessivo
