#include "AddEventVC/Palette.h"

#include "Interface/GradientLayer.h"
#include "fakes/RecordingConsole.h"
#include "support/Resources.h"
#include "json/JsonNamedColors.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace tessivo {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Color white{1, 1, 1, 1};

/// The catalogue that the program ships.
JsonNamedColors shippedColors() {
    return JsonNamedColors::fromJson(resource("colors.json")).value();
}

/// Relative luminance and contrast ratio as the Web Content Accessibility Guidelines define them.
double luminance(Color color) {
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrast(Color one, Color other) {
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

Color between(Color from, Color to, double share) {
    return {std::lerp(from.red, to.red, share), std::lerp(from.green, to.green, share),
            std::lerp(from.blue, to.blue, share), 1};
}

class PaletteTest : public testing::Test {
protected:
    Color named(std::string_view name) const {
        const auto color = colors.colorNamed(name);
        EXPECT_TRUE(color) << name;
        return color.value_or(Color{});
    }

    double leastContrastOfWhiteOn(std::string_view first, std::string_view second) const {
        double least = 21;
        for (int step = 0; step <= 16; ++step)
            least = std::min(least, contrast(white, between(named(first), named(second), step / 16.0)));
        return least;
    }

    const JsonNamedColors colors = shippedColors();
    fakes::RecordingConsole console;
    ui::GradientLayer layer;
};

TEST_F(PaletteTest, WhiteTextReadsOnEveryBackground) {
    for (const auto& item : sectionsColor) {
        EXPECT_GE(contrast(white, named(item.color)), 3) << item.color;
        EXPECT_EQ(named(item.color).alpha, 1) << item.color;
    }
    for (const auto& item : sectionsGradient) {
        EXPECT_GE(leastContrastOfWhiteOn(item.color1, item.color2), 3) << item.color1;
        EXPECT_EQ(named(item.color1).alpha + named(item.color2).alpha, 2) << item.color1;
    }
    EXPECT_GE(leastContrastOfWhiteOn("Gradient61", "Gradient62"), 3);
}

TEST_F(PaletteTest, SmallTextReadsOnInterfaceColours) {
    struct Pair {
        const char* text;
        const char* ground;
    };
    for (const auto& [text, ground] :
         {Pair{"button", "mainBack"}, Pair{"button", "backText"}, Pair{"button", "chekBack"},
          Pair{"disabled", "mainBack"}, Pair{"disabled", "backText"}, Pair{"subText", "mainBack"},
          Pair{"subText", "backText"}, Pair{"black", "mainBack"}, Pair{"black", "backText"},
          Pair{"futureColor", "mainBack"}, Pair{"pastColor", "mainBack"}})
        EXPECT_GE(contrast(named(text), named(ground)), 4.5) << text << " on " << ground;
    for (const char* text :
         {"button", "disabled", "subText", "black", "futureColor", "pastColor", "color 17"})
        EXPECT_GE(contrast(white, named(text)), 4.5) << text << " with white";
    for (const char* name : {"buttonTap", "background", "Line", "orange"})
        EXPECT_TRUE(colors.colorNamed(name)) << name;
}

TEST_F(PaletteTest, NoTwoBackgroundsLookTheSame) {
    const auto key = [](Color color) { return std::array{color.red, color.green, color.blue}; };
    std::set<std::array<double, 3>> solid;
    for (const auto& item : sectionsColor)
        solid.insert(key(named(item.color)));
    EXPECT_EQ(solid.size(), sectionsColor.size());
    std::set<std::pair<std::array<double, 3>, std::array<double, 3>>> fades;
    for (const auto& item : sectionsGradient)
        fades.insert({key(named(item.color1)), key(named(item.color2))});
    EXPECT_EQ(fades.size(), sectionsGradient.size());
}

TEST_F(PaletteTest, EachColourOfTheGradientTableStandsInOneRow) {
    std::set<std::string_view> names;
    for (const auto& item : sectionsGradient) {
        names.insert(item.color1);
        names.insert(item.color2);
    }
    EXPECT_EQ(names.size(), 60U);
    for (int number = 1; number <= 60; ++number)
        EXPECT_TRUE(names.contains("Gradient" + std::to_string(number))) << number;
}

TEST_F(PaletteTest, RowsAreWhatStoredEventsMean) {
    for (int row = 0; row < 30; ++row)
        EXPECT_EQ(colorItemAt(row, console).color, "color " + std::to_string(row + 1));

    // Eight rows run from the higher name to the lower one.
    std::vector<int> turned;
    for (int row = 0; row < 30; ++row) {
        const auto& item = gradientItemAt(row, console);
        const std::string low = "Gradient" + std::to_string(2 * row + 1);
        const std::string high = "Gradient" + std::to_string(2 * row + 2);
        if (item.color1 == high && item.color2 == low)
            turned.push_back(row);
        else
            EXPECT_TRUE(item.color1 == low && item.color2 == high) << row;
    }
    EXPECT_THAT(turned, ElementsAre(4, 8, 9, 15, 19, 22, 24, 29));

    std::string types;
    for (int row = 0; row < 30; ++row)
        types += std::to_string(gradientItemAt(row, console).type);
    EXPECT_EQ(types, "113221212214231213121321211412");
}

TEST_F(PaletteTest, AnIndexThatIsNoRowStopsTheProgram) {
    for (const int index : {-1, 30, 9999, -32768}) {
        EXPECT_THROW((void)colorItemAt(index, console), fakes::ProgramStopped) << index;
        EXPECT_THROW((void)gradientItemAt(index, console), fakes::ProgramStopped) << index;
    }
}

TEST_F(PaletteTest, TheTypeIsTheDirectionOfTheFade) {
    struct Direction {
        int type;
        ui::Point start;
        ui::Point end;
    };
    for (const auto& [type, start, end] : {Direction{1, {0, 0}, {1, 1}}, Direction{2, {0, 1}, {1, 0}},
                                           Direction{3, {0, 0}, {0, 1}}, Direction{4, {0, 0}, {1, 0}}}) {
        applyGradientItem(layer, {"Gradient10", "Gradient9", type}, colors, console);
        EXPECT_EQ(layer.startPoint(), start) << type;
        EXPECT_EQ(layer.endPoint(), end) << type;
        EXPECT_EQ(layer.colors(), std::pair(named("Gradient10"), named("Gradient9")));
    }
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(PaletteTest, AnUnknownDirectionKeepsThePointsAndSaysSo) {
    layer.setStartPoint({0.25, 0.5});
    layer.setEndPoint({0.75, 0.5});
    for (const int type : {0, 5, -1})
        applyGradientItem(layer, {"Gradient1", "Gradient2", type}, colors, console);
    EXPECT_EQ(layer.startPoint(), (ui::Point{0.25, 0.5}));
    EXPECT_EQ(layer.endPoint(), (ui::Point{0.75, 0.5}));
    EXPECT_EQ(layer.colors().second, named("Gradient2"));
    EXPECT_THAT(console.lines(), ElementsAre("1", "1", "1"));
}

TEST_F(PaletteTest, AMissingColourStopsTheProgramWithTheLayerUntouched) {
    const auto before = layer.colors();
    EXPECT_THROW(applyGradientItem(layer, {"Gradient1", "Gradient63", 1}, colors, console),
                 fakes::ProgramStopped);
    EXPECT_THROW(applyGradientItem(layer, {"gradient1", "Gradient2", 1}, colors, console),
                 fakes::ProgramStopped);
    EXPECT_EQ(layer.colors(), before);
}

} // namespace
} // namespace tessivo
