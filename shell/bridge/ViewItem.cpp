#include "bridge/ViewItem.h"

#include <utility>

namespace tessivo::shell {

ViewItem::ViewItem(ui::View& view, const BridgeContext& context, QObject* parent)
    : QObject(parent), view_(view), context_(context), changes_(view.onChange([this](ui::ViewChange change) {
          switch (change) {
          case ui::ViewChange::Content:
              Q_EMIT contentChanged();
              break;
          case ui::ViewChange::Appearance:
              followMask();
              Q_EMIT appearanceChanged();
              break;
          case ui::ViewChange::Geometry:
              Q_EMIT geometryChanged();
              break;
          case ui::ViewChange::Hierarchy:
              Q_EMIT placedChanged();
              break;
          }
      })) {}

void ViewItem::followMask() {
    ui::View* const mask = view_.mask();
    if (std::exchange(mask_, mask) == mask)
        return;
    maskChanges_ = mask ? mask->onChange([this](ui::ViewChange) { Q_EMIT maskChanged(); }) : Subscription();
    Q_EMIT maskChanged();
}

QRectF ViewItem::mask() const {
    if (!view_.mask())
        return {};
    const ui::Rect frame = view_.mask()->drawnFrame();
    return {frame.x, frame.y, frame.width, frame.height};
}

Fill ViewItem::fill() const {
    Fill fill;
    fill.color = context_.color(view_.backgroundColor());
    // A later layer lies over an earlier one.
    for (const auto& layer : view_.sublayers()) {
        if (layer->isHidden())
            continue;
        fill.fades = true;
        fill.first = toQColor(layer->colors().first);
        fill.second = toQColor(layer->colors().second);
        fill.start = {layer->startPoint().x, layer->startPoint().y};
        fill.end = {layer->endPoint().x, layer->endPoint().y};
    }
    return fill;
}

QString ViewItem::accessibleName() const {
    return QString::fromStdString(view_.accessibilityName());
}

} // namespace tessivo::shell
