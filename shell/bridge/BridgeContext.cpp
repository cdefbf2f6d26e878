#include "bridge/BridgeContext.h"

namespace tessivo::shell {

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

QColor BridgeContext::color(const ui::ColorRef& color) const {
    if (color.value)
        return toQColor(*color.value);
    const auto named = colors.colorNamed(color.name);
    return named ? toQColor(*named) : QColor(Qt::transparent);
}

} // namespace tessivo::shell
