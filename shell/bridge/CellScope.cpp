#include "bridge/CellScope.h"

namespace tessivo::shell {

void CellScope::setCell(CellItem* cell) {
    if (cell == cell_)
        return;
    cell_ = cell;
    Q_EMIT cellChanged();
}

QStringList CellScope::actionNames() const {
    return cell_ ? cell_->actionNames() : QStringList();
}

void CellScope::act(const QString& name) {
    if (cell_)
        cell_->act(name);
}

} // namespace tessivo::shell
