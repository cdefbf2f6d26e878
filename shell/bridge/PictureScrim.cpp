#include "bridge/PictureScrim.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr double brightestForWhiteText = 0.466; // of grey, 0 to 1: the contrast to white is 4.5
constexpr double ignoredShare = 0.02;           // of the pixels: glints that no letter hides in
constexpr double reachOfScrim = 0.22;           // of the height: where it has faded, beyond its text

/// The grey, 0 to 255, that is as bright as the color.
int greyOf(int red, int green, int blue) {
    static const auto linear = [] { // light, as it adds up
        std::array<double, 256> values{};
        for (int channel = 0; channel < 256; ++channel) {
            const double value = channel / 255.0;
            values[static_cast<std::size_t>(channel)] =
                value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    const auto of = [](int channel) { return linear[static_cast<std::size_t>(channel)]; };
    const double light = 0.2126 * of(red) + 0.7152 * of(green) + 0.0722 * of(blue);
    return static_cast<int>(std::distance(linear.begin(), std::ranges::lower_bound(linear, light)));
}

/// The brightest grey of this area, 0 to 1, but for the glints.
double brightest(const QImage& picture, const QRect& area) {
    std::array<int, 256> histogram{};
    int counted = 0;
    for (int row = area.top(); row <= area.bottom(); row += 2) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        for (int column = area.left(); column <= area.right(); column += 2) {
            const QRgb pixel = line[column];
            ++histogram[static_cast<std::size_t>(greyOf(qRed(pixel), qGreen(pixel), qBlue(pixel)))];
            ++counted;
        }
    }
    auto left = static_cast<int>(counted * ignoredShare);
    int grey = 255;
    while (grey > 0 && (left -= histogram[static_cast<std::size_t>(grey)]) >= 0)
        --grey;
    return grey / 255.0;
}

/// How far a place lies outside of a stretch.
int outside(int at, int first, int last) {
    return std::max({first - at, at - last, 0});
}

/// A shade over the picture's whole width.
struct Scrim {
    int first = 0; ///< of the rows that are wholly shaded
    int last = 0;
    double strength = 0;

    /// What it takes of a row's light.
    [[nodiscard]] double at(int row, double reach) const {
        const double near = std::max(0.0, 1 - outside(row, first, last) / reach);
        return strength * near * near * (3 - 2 * near);
    }
};

Scrim scrimBehind(const QRectF& text, const QImage& picture) {
    const QRect under = text.toAlignedRect() & picture.rect();
    if (under.isEmpty())
        return {};
    const double bright = brightest(picture, under);
    if (bright <= brightestForWhiteText)
        return {};
    const double strength = 1 - brightestForWhiteText / bright;
    if (2 * under.center().y() < picture.height())
        return {0, under.bottom(), strength};
    return {under.top(), picture.height() - 1, strength};
}

QRgb shaded(QRgb pixel, double kept) {
    const auto part = [kept](int channel) { return static_cast<int>(std::lround(channel * kept)); };
    return qRgba(part(qRed(pixel)), part(qGreen(pixel)), part(qBlue(pixel)), qAlpha(pixel));
}

} // namespace

void shadeBehindTexts(QImage& picture, const std::array<QRectF, 2>& texts) {
    const std::array scrims{scrimBehind(texts[0], picture), scrimBehind(texts[1], picture)};
    const double reach = reachOfScrim * picture.height();
    for (int row = 0; row < picture.height(); ++row) {
        const double shade = std::max(scrims[0].at(row, reach), scrims[1].at(row, reach));
        if (shade == 0)
            continue;
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(row));
        std::transform(line, line + picture.width(), line,
                       [shade](QRgb pixel) { return shaded(pixel, 1 - shade); });
    }
}

} // namespace tessivo::shell
