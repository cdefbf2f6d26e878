#include "bridge/ScreenPane.h"

#include <utility>

namespace tessivo::shell {

ScreenPane::ScreenPane(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
}

void ScreenPane::setUnderMenu(bool under) {
    if (std::exchange(underMenu_, under) != under)
        Q_EMIT underMenuChanged();
}

void ScreenPane::componentComplete() {
    QQuickItem::componentComplete();
    if (isEnabled())
        forceActiveFocus(Qt::OtherFocusReason);
}

void ScreenPane::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemEnabledHasChanged && isEnabled() && isComponentComplete())
        forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace tessivo::shell
