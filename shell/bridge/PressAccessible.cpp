#include "bridge/PressAccessible.h"

namespace tessivo::shell {
namespace {

/// What the drawing of `item` says to assistive technology; null where it says nothing.
const QObject* attachedTo(const QQuickItem& item) {
    for (const QObject* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached"))
            return child;
    }
    return nullptr;
}

/// The interface of `item`, unless its drawing hides it: the interface may be older than that.
QAccessibleInterface* seen(QQuickItem& item) {
    const QObject* const attached = attachedTo(item);
    if (attached && attached->property("ignored").toBool())
        return nullptr;
    return QAccessible::queryAccessibleInterface(&item);
}

/// The outermost items under `item` that assistive technology knows.
void collect(const QQuickItem& item, QList<QAccessibleInterface*>& found) {
    for (QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        const auto* pressable = qobject_cast<const Pressable*>(child);
        if (pressable && !pressable->isAccessible())
            continue;
        if (auto* interface = seen(*child))
            found.push_back(interface);
        else
            collect(*child, found);
    }
}

} // namespace

QAccessibleInterface* ItemAccessible::parent() const {
    for (QQuickItem* item = item_.parentItem(); item; item = item->parentItem()) {
        if (auto* interface = seen(*item))
            return interface;
    }
    return QAccessible::queryAccessibleInterface(item_.window());
}

QList<QAccessibleInterface*> ItemAccessible::children() const {
    QList<QAccessibleInterface*> found;
    collect(item_, found);
    return found;
}

int ItemAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(children().indexOf(child));
}

QRect ItemAccessible::rect() const {
    const QRectF inScene = item_.mapRectToScene({0, 0, item_.width(), item_.height()});
    const QPoint origin = item_.window() ? item_.window()->mapToGlobal(QPoint()) : QPoint();
    return inScene.toAlignedRect().translated(origin);
}

QAccessible::State ItemAccessible::state() const {
    QAccessible::State state;
    state.focused = item_.window() && item_.window()->activeFocusItem() == &item_; // not a scope of it
    state.invisible = !item_.isVisible();
    state.disabled = !item_.isEnabled();
    return state;
}

bool PressAccessible::says(const char* flag) const {
    return item_.accessible() && item_.accessible()->property(flag).toBool();
}

QString PressAccessible::text(QAccessible::Text kind) const {
    if (!item_.accessible())
        return {};
    switch (kind) {
    case QAccessible::Name:
        return item_.accessible()->property("name").toString();
    case QAccessible::Description:
        return item_.accessible()->property("description").toString();
    default:
        return {};
    }
}

QAccessible::Role PressAccessible::role() const {
    return item_.accessible() ? static_cast<QAccessible::Role>(item_.accessible()->property("role").toInt())
                              : QAccessible::Button;
}

QAccessible::State PressAccessible::state() const {
    QAccessible::State state = ItemAccessible::state();
    state.focusable = item_.activeFocusOnTab();
    state.checkable = says("checkable");
    state.checked = says("checked");
    state.selectable = says("selectable");
    state.selected = says("selected");
    return state;
}

void* PressAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList PressAccessible::actionNames() const {
    if (!item_.isEnabled())
        return {};
    return QStringList{says("checkable") ? toggleAction() : pressAction()} + item_.actionNames();
}

void PressAccessible::doAction(const QString& name) {
    if (!item_.isEnabled())
        return;
    if (name == pressAction() || name == toggleAction())
        item_.click();
    else
        item_.act(name);
}

QString PaneAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? pane_.title() : QString();
}

QAccessible::Role PaneAccessible::role() const {
    const QObject* const attached = attachedTo(pane_);
    if (attached && attached->property("role").toInt() == QAccessible::PopupMenu)
        return QAccessible::PopupMenu;
    return pane_.isModal() ? QAccessible::Dialog : QAccessible::Pane;
}

QAccessible::State PaneAccessible::state() const {
    QAccessible::State state = ItemAccessible::state();
    state.modal = pane_.isModal() && pane_.isEnabled();
    return state;
}

QList<QAccessibleInterface*> PaneAccessible::children() const {
    return pane_.isEnabled() ? ItemAccessible::children() : QList<QAccessibleInterface*>();
}

} // namespace tessivo::shell
