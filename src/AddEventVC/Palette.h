#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tessivo {

class Console;
class NamedColors;

namespace ui {
class GradientLayer;
}

/// A solid background: the name of a colour of the catalogue.
struct ColorItem {
    std::string_view color;
};

/// A background that fades from one named colour to another. `type` is the direction: 1 from the top left to
/// the bottom right, 2 from the bottom left to the top right, 3 from top to bottom, 4 from left to right.
struct GradientItem {
    std::string_view color1;
    std::string_view color2;
    int type = 1;
};

/// The backgrounds that an event can have. Stored events hold positions in these tables: rows never move.
inline constexpr std::array<ColorItem, 30> sectionsColor{{
    {"color 1"},  {"color 2"},  {"color 3"},  {"color 4"},  {"color 5"},  {"color 6"},
    {"color 7"},  {"color 8"},  {"color 9"},  {"color 10"}, {"color 11"}, {"color 12"},
    {"color 13"}, {"color 14"}, {"color 15"}, {"color 16"}, {"color 17"}, {"color 18"},
    {"color 19"}, {"color 20"}, {"color 21"}, {"color 22"}, {"color 23"}, {"color 24"},
    {"color 25"}, {"color 26"}, {"color 27"}, {"color 28"}, {"color 29"}, {"color 30"},
}};

inline constexpr std::array<GradientItem, 30> sectionsGradient{{
    {"Gradient1", "Gradient2", 1},   {"Gradient3", "Gradient4", 1},   {"Gradient5", "Gradient6", 3},
    {"Gradient7", "Gradient8", 2},   {"Gradient10", "Gradient9", 2},  {"Gradient11", "Gradient12", 1},
    {"Gradient13", "Gradient14", 2}, {"Gradient15", "Gradient16", 1}, {"Gradient18", "Gradient17", 2},
    {"Gradient20", "Gradient19", 2}, {"Gradient21", "Gradient22", 1}, {"Gradient23", "Gradient24", 4},
    {"Gradient25", "Gradient26", 2}, {"Gradient27", "Gradient28", 3}, {"Gradient29", "Gradient30", 1},
    {"Gradient32", "Gradient31", 2}, {"Gradient33", "Gradient34", 1}, {"Gradient35", "Gradient36", 3},
    {"Gradient37", "Gradient38", 1}, {"Gradient40", "Gradient39", 2}, {"Gradient41", "Gradient42", 1},
    {"Gradient43", "Gradient44", 3}, {"Gradient46", "Gradient45", 2}, {"Gradient47", "Gradient48", 1},
    {"Gradient50", "Gradient49", 2}, {"Gradient51", "Gradient52", 1}, {"Gradient53", "Gradient54", 1},
    {"Gradient55", "Gradient56", 4}, {"Gradient57", "Gradient58", 1}, {"Gradient60", "Gradient59", 2},
}};

/// The gradient of an event for which nothing else was chosen, and of the card that previews it.
inline constexpr std::size_t defaultGradientRow = 1;

/// Row `index` of a table. An index that is no row stops the program: the event was stored with a background
/// that does not exist.
[[nodiscard]] const ColorItem& colorItemAt(int index, Console& console);
[[nodiscard]] const GradientItem& gradientItemAt(int index, Console& console);

/// Gives `layer` the colours and the direction of `item`. A colour that the catalogue lacks stops the
/// program; an unknown direction prints "1" and leaves the layer's points as they are.
void applyGradientItem(ui::GradientLayer& layer, const GradientItem& item, const NamedColors& colors,
                       Console& console);

} // namespace tessivo
