#include "json/JsonNamedColors.h"

#include "json/TextTable.h"

#include <charconv>
#include <cstdint>

namespace tessivo {
namespace {

std::optional<Color> colorFrom(std::string_view text) {
    if (!text.starts_with('#') || (text.size() != 7 && text.size() != 9))
        return std::nullopt;
    text.remove_prefix(1);
    std::uint32_t value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (fault != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    const std::uint32_t rgba = text.size() == 6 ? value << 8 | 0xFF : value;
    const auto component = [rgba](int shift) { return static_cast<double>(rgba >> shift & 0xFF) / 255; };
    return Color{.red = component(24), .green = component(16), .blue = component(8), .alpha = component(0)};
}

} // namespace

Result<JsonNamedColors> JsonNamedColors::fromJson(std::string_view json) {
    const auto table = readTextTable(json);
    if (!table)
        return table.error();
    Catalogue colors;
    for (const auto& [name, text] : table.value()) {
        const auto color = colorFrom(text);
        if (!color)
            return jsonError("The colour \"" + name + "\" is written \"" + text +
                             "\", not #RRGGBB or #RRGGBBAA.");
        colors.emplace(name, *color);
    }
    return JsonNamedColors(std::move(colors));
}

std::optional<Color> JsonNamedColors::colorNamed(std::string_view name) const {
    const auto found = colors_.find(name);
    if (found == colors_.end())
        return std::nullopt;
    return found->second;
}

} // namespace tessivo
