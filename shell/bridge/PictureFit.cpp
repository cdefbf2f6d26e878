#include "bridge/PictureFit.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr double brightestForWhiteText = 0.466; // of grey, 0 to 1: the contrast to white is 4.5
constexpr double ignoredShare = 0.02;           // of the pixels: glints that no letter hides in
constexpr double textReach = 0.42;              // of the height, from above and from below

double linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The grey, 0 to 255, that is as bright as the color.
int greyOf(QRgb color) {
    static const auto table = [] {
        std::array<double, 256> values{};
        for (int channel = 0; channel < 256; ++channel)
            values[static_cast<std::size_t>(channel)] = linear(channel);
        return values;
    }();
    const auto of = [](int channel) { return table[static_cast<std::size_t>(channel)]; };
    const double luminance =
        0.2126 * of(qRed(color)) + 0.7152 * of(qGreen(color)) + 0.0722 * of(qBlue(color));
    return static_cast<int>(std::distance(table.begin(), std::ranges::lower_bound(table, luminance)));
}

/// How opaque a black veil over these rows must be for white text on them.
double veil(const QImage& picture, int firstRow, int endRow) {
    std::array<int, 257> histogram{};
    int counted = 0;
    for (int row = firstRow; row < endRow; ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        for (int column = 0; column < picture.width(); column += 2) {
            if (qAlpha(line[column]) == 0)
                continue;
            ++histogram[static_cast<std::size_t>(greyOf(line[column]))];
            ++counted;
        }
    }
    auto left = static_cast<int>(counted * ignoredShare);
    int brightest = 255;
    while (brightest > 0 && (left -= histogram[static_cast<std::size_t>(brightest)]) >= 0)
        --brightest;
    return brightest == 0 ? 0 : std::max(0.0, 1 - brightestForWhiteText * 255 / brightest);
}

QColor black(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

} // namespace

QRectF fitted(QSizeF picture, const QRectF& area, ui::ContentMode mode) {
    QSizeF size = picture;
    switch (mode) {
    case ui::ContentMode::ScaleToFill:
        size = area.size();
        break;
    case ui::ContentMode::AspectFit:
        size.scale(area.size(), Qt::KeepAspectRatio);
        break;
    case ui::ContentMode::AspectFill:
        size.scale(area.size(), Qt::KeepAspectRatioByExpanding);
        break;
    case ui::ContentMode::Center:
        break;
    }
    QRectF whole({}, size);
    whole.moveCenter(area.center());
    return whole;
}

QImage cardPicture(const QImage& picture, QSizeF size, double scale, double radius, ui::ContentMode mode) {
    QImage card((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    card.setDevicePixelRatio(scale);
    card.fill(Qt::transparent);
    if (picture.isNull() || card.isNull())
        return card;
    const QRectF area({}, size);
    QPainter painter(&card);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.drawImage(fitted(picture.size(), area, mode), picture);

    const int reach = static_cast<int>(card.height() * textReach);
    QLinearGradient shade(area.topLeft(), area.bottomLeft());
    const QColor above = black(veil(card, 0, reach));
    const QColor below = black(veil(card, card.height() - reach, card.height()));
    shade.setStops({{0, above}, {textReach, above}, {1 - textReach, below}, {1, below}});
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(area, shade);

    QImage shape(card.size(), QImage::Format_ARGB32_Premultiplied);
    shape.setDevicePixelRatio(scale);
    shape.fill(Qt::transparent);
    QPainter shapePainter(&shape);
    shapePainter.setRenderHint(QPainter::Antialiasing);
    shapePainter.setPen(Qt::NoPen);
    shapePainter.setBrush(Qt::black);
    shapePainter.drawRoundedRect(area, radius, radius);
    shapePainter.end();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(QPointF(), shape);
    return card;
}

} // namespace tessivo::shell
