#include "bridge/CellAccessible.h"

namespace tessivo::shell {
namespace {

/// The outermost items under `item` that assistive technology knows.
void collect(const QQuickItem& item, QList<QAccessibleInterface*>& found) {
    for (QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        if (auto* interface = QAccessible::queryAccessibleInterface(child))
            found.push_back(interface);
        else
            collect(*child, found);
    }
}

} // namespace

QAccessibleInterface* CellAccessible::parent() const {
    for (QQuickItem* item = scope_.parentItem(); item; item = item->parentItem()) {
        if (auto* interface = QAccessible::queryAccessibleInterface(item))
            return interface;
    }
    return QAccessible::queryAccessibleInterface(scope_.window());
}

QList<QAccessibleInterface*> CellAccessible::children() const {
    QList<QAccessibleInterface*> found;
    collect(scope_, found);
    return found;
}

QAccessibleInterface* CellAccessible::child(int index) const {
    return children().value(index);
}

int CellAccessible::childCount() const {
    return static_cast<int>(children().size());
}

int CellAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(children().indexOf(child));
}

QString CellAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name && scope_.cell() ? scope_.cell()->accessibleName() : QString();
}

QRect CellAccessible::rect() const {
    const QRectF inScene = scope_.mapRectToScene({0, 0, scope_.width(), scope_.height()});
    const QPoint origin = scope_.window() ? scope_.window()->mapToGlobal(QPoint()) : QPoint();
    return inScene.toAlignedRect().translated(origin);
}

QAccessible::State CellAccessible::state() const {
    QAccessible::State state;
    state.focusable = true;
    state.focused = scope_.hasActiveFocus();
    state.invisible = !scope_.isVisible();
    state.disabled = !scope_.isEnabled();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList CellAccessible::actionNames() const {
    QStringList names{pressAction()};
    if (const auto* cell = scope_.cell())
        names += cell->actionNames();
    return names;
}

void CellAccessible::doAction(const QString& name) {
    if (name == pressAction())
        Q_EMIT scope_.pressed();
    else if (auto* cell = scope_.cell())
        cell->act(name);
}

} // namespace tessivo::shell
