#pragma once

#include "Interface/Geometry.h"

#include <functional>

namespace tessivo::ui {

class CollectionViewCell;

/// What a touch asks of the list whose cell it is on. Main thread.
class CellList {
public:
    virtual ~CellList() = default;

    /// The user taps the cell.
    virtual void tapCell(CollectionViewCell& cell) = 0;
    /// The user's finger rests on the cell, at `point` of the list. Says whether anything came of it.
    virtual bool holdCell(CollectionViewCell& /*cell*/, Point /*point*/) { return false; }

    /// A finger has come onto a cell: the list keeps its cells until the finger goes.
    virtual void fingerCame() {}
    /// The finger goes, and does `act` on the cells that it has had under it; then the list is free again.
    virtual void fingerGoes(const std::function<void()>& act) { act(); }
};

} // namespace tessivo::ui
