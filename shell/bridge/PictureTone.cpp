#include "bridge/PictureTone.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr double brightestForWhiteText = 0.466; // of grey, 0 to 1: the contrast to white is 4.5
constexpr double ignoredShare = 0.02;           // of the pixels: glints that no letter hides in
constexpr double textReach = 0.42;              // of the height, from above and from below
constexpr double fullGamma = 0.75;              // a grey so bright, 0 to 1, gets the whole exponent

/// What becomes of each value of a channel, 0 to 255.
using Tone = std::array<int, 256>;

int at(const Tone& tone, int channel) {
    return tone[static_cast<std::size_t>(channel)];
}

Tone tone(double factor, double exponent) {
    Tone values{};
    for (int channel = 0; channel < 256; ++channel)
        values[static_cast<std::size_t>(channel)] =
            static_cast<int>(std::lround(255 * factor * std::pow(channel / 255.0, exponent)));
    return values;
}

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

/// The brightest grey of these rows under the tone, 0 to 1, but for the glints.
double brightest(const QImage& picture, int firstRow, int endRow, const Tone& tone) {
    std::array<int, 257> histogram{};
    int counted = 0;
    for (int row = firstRow; row < endRow; row += 2) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        for (int column = 0; column < picture.width(); column += 4) {
            const QRgb pixel = line[column];
            if (qAlpha(pixel) == 0)
                continue;
            const int grey = greyOf(at(tone, qRed(pixel)), at(tone, qGreen(pixel)), at(tone, qBlue(pixel)));
            ++histogram[static_cast<std::size_t>(grey)];
            ++counted;
        }
    }
    auto left = static_cast<int>(counted * ignoredShare);
    int grey = 255;
    while (grey > 0 && (left -= histogram[static_cast<std::size_t>(grey)]) >= 0)
        --grey;
    return grey / 255.0;
}

/// What these rows need. An exponent keeps colors strong but cannot darken white; a factor does the rest.
Tone toneForWhiteText(const QImage& picture, int firstRow, int endRow) {
    const Tone asItIs = tone(1, 1);
    const double before = brightest(picture, firstRow, endRow, asItIs);
    if (before <= brightestForWhiteText)
        return asItIs;
    const double exponent =
        1 + std::min(1.0, (before - brightestForWhiteText) / (fullGamma - brightestForWhiteText));
    const double deepened = brightest(picture, firstRow, endRow, tone(1, exponent));
    return tone(std::min(1.0, brightestForWhiteText / deepened), exponent);
}

QRgb darkened(QRgb pixel, const Tone& tone) {
    if (qAlpha(pixel) == 255)
        return qRgb(at(tone, qRed(pixel)), at(tone, qGreen(pixel)), at(tone, qBlue(pixel)));
    const QRgb plain = qUnpremultiply(pixel);
    return qPremultiply(
        qRgba(at(tone, qRed(plain)), at(tone, qGreen(plain)), at(tone, qBlue(plain)), qAlpha(plain)));
}

} // namespace

void darkenForWhiteText(QImage& picture) {
    const int height = picture.height();
    const int reach = static_cast<int>(height * textReach);
    const Tone above = toneForWhiteText(picture, 0, reach);
    const Tone below = toneForWhiteText(picture, height - reach, height);
    for (int row = 0; row < height; ++row) {
        const double way = std::clamp((row - reach) / std::max(1.0, height - 2.0 * reach), 0.0, 1.0);
        const double share = way * way * (3 - 2 * way); // from above to below without an edge
        Tone mixed{};
        for (std::size_t channel = 0; channel < mixed.size(); ++channel)
            mixed[channel] = static_cast<int>(std::lround(std::lerp(above[channel], below[channel], share)));
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(row));
        std::transform(line, line + picture.width(), line,
                       [&](QRgb pixel) { return darkened(pixel, mixed); });
    }
}

} // namespace tessivo::shell
