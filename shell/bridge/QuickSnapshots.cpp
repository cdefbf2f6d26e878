#include "bridge/QuickSnapshots.h"

#include "Interface/View.h"
#include "bridge/BitmapImage.h"

#include <QPainter>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>

#include <cmath>
#include <utility>

namespace tessivo::shell {
namespace {

/// Cuts the corners off: without a graphics processor what lies behind them is grabbed as black.
QImage roundOff(const QImage& picture, double radius) {
    QImage rounded(picture.size(), QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(picture));
    painter.drawRoundedRect(QRectF(picture.rect()), radius, radius);
    return rounded;
}

} // namespace

void QuickSnapshots::drawnBy(const ui::View& view, QQuickItem& item) {
    drawings_[&view] = &item;
    connect(&item, &QObject::destroyed, this, [this] {
        std::erase_if(drawings_, [](const auto& drawing) { return drawing.second.isNull(); });
    });
}

void QuickSnapshots::snapshot(const ui::View& view, Taken taken) {
    const auto found = drawings_.find(&view);
    QQuickItem* item = found == drawings_.end() ? nullptr : found->second.data();
    QSharedPointer<QQuickItemGrabResult> result;
    if (item && item->window()) {
        const double scale = item->window()->effectiveDevicePixelRatio();
        const ui::Rect bounds = view.bounds();
        result = item->grabToImage({static_cast<int>(std::lround(bounds.width * scale)),
                                    static_cast<int>(std::lround(bounds.height * scale))});
    }
    if (!result) {
        QMetaObject::invokeMethod(
            this, [taken = std::move(taken)] { taken(nullptr); }, Qt::QueuedConnection);
        return;
    }
    pending_.push_back(result);
    connect(result.data(), &QQuickItemGrabResult::ready, this,
            [this, grabbed = result.data(),
             radius = view.cornerRadius() * item->window()->effectiveDevicePixelRatio(),
             taken = std::move(taken)] { finish(*grabbed, radius, taken); });
}

void QuickSnapshots::finish(const QQuickItemGrabResult& result, double radius, const Taken& taken) {
    const auto picture = toBitmap(roundOff(result.image(), radius));
    const Taken answer = taken; // goes with the result
    std::erase_if(pending_, [&](const auto& held) { return held.data() == &result; });
    answer(picture);
}

} // namespace tessivo::shell
