#include "bridge/CellScope.h"

#include "bridge/CellAccessible.h"

namespace tessivo::shell {
namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* const scope = qobject_cast<CellScope*>(object);
    return scope ? new CellAccessible(*scope) : nullptr;
}

} // namespace

void CellScope::makeAccessible() {
    QAccessible::installFactory(makeInterface);
}

void CellScope::setCell(CellItem* cell) {
    if (cell == cell_)
        return;
    cell_ = cell;
    Q_EMIT cellChanged();
}

} // namespace tessivo::shell
