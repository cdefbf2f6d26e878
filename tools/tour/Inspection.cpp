#include "Inspection.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

namespace tessivo::tour {
namespace {

constexpr double smallestTarget = 44; // points
constexpr double rounding = 0.01;

bool isPressable(QAccessible::Role role) {
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::PageTab:
    case QAccessible::EditableText:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::Link:
        return true;
    default:
        return false;
    }
}

void inspect(QQuickItem& item, QStringList& faults) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    for (QQuickItem* child : item.childItems())
        inspect(*child, faults);
    auto* interface = QAccessible::queryAccessibleInterface(&item);
    if (item.width() <= 0 || !(item.activeFocusOnTab() || (interface && isPressable(interface->role()))))
        return;
    const QString name = interface ? interface->text(QAccessible::Name) : QString();
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    const QString told = QStringLiteral("%1 \"%2\" at %3, %4, %5 x %6")
                             .arg(QLatin1String(item.metaObject()->className()), name)
                             .arg(place.x())
                             .arg(place.y())
                             .arg(place.width())
                             .arg(place.height());
    if (name.isEmpty())
        faults << QStringLiteral("A control without a name: ") + told;
    if (place.width() < smallestTarget - rounding || place.height() < smallestTarget - rounding)
        faults << QStringLiteral("A control too small to touch: ") + told;
}

} // namespace

QStringList faultsOf(QQuickWindow& window) {
    QStringList faults;
    inspect(*window.contentItem(), faults);
    return faults;
}

} // namespace tessivo::tour
