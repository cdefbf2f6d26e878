#include "qt/QtTextMeasuring.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QString>

#include <algorithm>

namespace tessivo {
namespace {

/// Longer than any text, and short enough for the arithmetic of layouts.
constexpr double noLimit = 1e6;

} // namespace

TextExtent QtTextMeasuring::measure(std::string_view text, MeasuredFont font, TextExtent box) const {
    if (text.empty())
        return {};
    QFont measured = QGuiApplication::font();
    measured.setPixelSize(static_cast<int>(font.size));
    measured.setWeight(static_cast<QFont::Weight>(font.weight));
    const QRectF room(0, 0, std::min(box.width, noLimit), noLimit);
    const QRectF taken = QFontMetricsF(measured).boundingRect(
        room, Qt::TextWordWrap, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    return {taken.width(), std::min(taken.height(), box.height)};
}

} // namespace tessivo
