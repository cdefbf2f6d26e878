#include "bridge/PictureScrim.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr double brightestForWhiteText = 0.466; // of grey, 0 to 1: the contrast to white is 4.5
constexpr double ignoredShare = 0.02;           // of the pixels: glints that no letter hides in
constexpr double reachAcross = 0.6;             // of the width: where a scrim has faded, beyond its text
constexpr double reachDown = 0.4;               // of the shorter side

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

/// A shade from a text to the edges that it stands at.
struct Scrim {
    QRect solid;
    double strength = 0;
    double across = 1; ///< in pixels, until it has faded
    double down = 1;

    /// What it takes of a pixel's light.
    [[nodiscard]] double at(int column, int row) const {
        if (strength == 0)
            return 0;
        const double far = std::hypot(outside(column, solid.left(), solid.right()) / across,
                                      outside(row, solid.top(), solid.bottom()) / down);
        const double near = std::max(0.0, 1 - far);
        return strength * near * near * (3 - 2 * near);
    }
};

Scrim scrimBehind(const QRectF& text, const QImage& picture) {
    const QRect whole = picture.rect();
    QRect solid = text.toAlignedRect() & whole;
    if (solid.isEmpty())
        return {};
    const double bright = brightest(picture, solid);
    if (bright <= brightestForWhiteText)
        return {};
    if (solid.center().y() < whole.center().y())
        solid.setTop(whole.top());
    else
        solid.setBottom(whole.bottom());
    if (solid.left() < whole.right() - solid.right())
        solid.setLeft(whole.left());
    else
        solid.setRight(whole.right());
    return {solid, 1 - brightestForWhiteText / bright, reachAcross * whole.width(),
            reachDown * std::min(whole.width(), whole.height())};
}

QRgb shaded(QRgb pixel, double kept) {
    const auto part = [kept](int channel) { return static_cast<int>(std::lround(channel * kept)); };
    return qRgba(part(qRed(pixel)), part(qGreen(pixel)), part(qBlue(pixel)), qAlpha(pixel));
}

} // namespace

void shadeBehindTexts(QImage& picture, const std::array<QRectF, 2>& texts) {
    const std::array scrims{scrimBehind(texts[0], picture), scrimBehind(texts[1], picture)};
    for (int row = 0; row < picture.height(); ++row) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(row));
        for (int column = 0; column < picture.width(); ++column) {
            const double shade = std::max(scrims[0].at(column, row), scrims[1].at(column, row));
            if (shade > 0)
                line[column] = shaded(line[column], 1 - shade);
        }
    }
}

} // namespace tessivo::shell
