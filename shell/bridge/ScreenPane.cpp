#include "bridge/ScreenPane.h"

#include "bridge/Pressable.h"

#include <QQuickWindow>

#include <utility>

namespace tessivo::shell {
namespace {

QQuickItem* findPlace(const QQuickItem& item, const QString& place) {
    for (QQuickItem* child : item.childItems()) {
        const auto* pressable = qobject_cast<const Pressable*>(child);
        if (pressable && pressable->isVisible() && pressable->place() == place)
            return child;
        if (auto* found = findPlace(*child, place))
            return found;
    }
    return nullptr;
}

} // namespace

ScreenPane::ScreenPane(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
}

void ScreenPane::setUnderMenu(bool under) {
    if (std::exchange(underMenu_, under) != under)
        Q_EMIT underMenuChanged();
}

void ScreenPane::begin(const QString& place) {
    // Within the pane only: another one may have the window's focus.
    QQuickItem* const wanted = place.isEmpty() ? nullptr : findPlace(*this, place);
    for (QQuickItem* item = wanted; item && item != this; item = item->parentItem()) {
        if (item == wanted || item->isFocusScope())
            item->setFocus(true);
    }
    if (isEnabled())
        takeFocus();
}

void ScreenPane::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change != ItemEnabledHasChanged || !isComponentComplete())
        return;
    if (isEnabled())
        return takeFocus();
    const auto* const control = qobject_cast<const Pressable*>(focused());
    Q_EMIT covered(control ? control->place() : QString());
}

QQuickItem* ScreenPane::focused() const {
    QQuickItem* item = scopedFocusItem();
    while (item && item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    return item;
}

void ScreenPane::takeFocus() {
    forceActiveFocus(Qt::OtherFocusReason);
    const QQuickItem* const reached = focused();
    if (reached && reached->activeFocusOnTab())
        return;
    QQuickItem* const first = nextItemInFocusChain(true);
    if (isAncestorOf(first))
        first->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace tessivo::shell
