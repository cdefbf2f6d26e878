#include "AddEventVC/Palette.h"

#include "Interface/GradientLayer.h"
#include "Ports/Console.h"
#include "Ports/NamedColors.h"

#include <string>

namespace tessivo {
namespace {

template <class Table>
const auto& rowAt(const Table& table, int index, std::string_view name, Console& console) {
    if (index < 0 || index >= static_cast<int>(table.size()))
        console.stopProgram("The table " + std::string(name) + " has no row " + std::to_string(index) + ".");
    return table[static_cast<std::size_t>(index)];
}

Color colorOf(std::string_view name, const NamedColors& colors, Console& console) {
    const auto color = colors.colorNamed(name);
    if (!color)
        console.stopProgram("There is no colour named " + std::string(name) + ".");
    return *color;
}

} // namespace

const ColorItem& colorItemAt(int index, Console& console) {
    return rowAt(sectionsColor, index, "sectionsColor", console);
}

const GradientItem& gradientItemAt(int index, Console& console) {
    return rowAt(sectionsGradient, index, "sectionsGradient", console);
}

void applyGradientItem(ui::GradientLayer& layer, const GradientItem& item, const NamedColors& colors,
                       Console& console) {
    const Color first = colorOf(item.color1, colors, console);
    const Color second = colorOf(item.color2, colors, console);
    layer.setColors(first, second);

    const auto setPoints = [&layer](ui::Point start, ui::Point end) {
        layer.setStartPoint(start);
        layer.setEndPoint(end);
    };
    switch (item.type) {
    case 1:
        setPoints({0, 0}, {1, 1});
        break;
    case 2:
        setPoints({0, 1}, {1, 0});
        break;
    case 3:
        setPoints({0, 0}, {0, 1});
        break;
    case 4:
        setPoints({0, 0}, {1, 0});
        break;
    default:
        console.print("1");
    }
}

} // namespace tessivo
