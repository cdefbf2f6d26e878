#include "Interface/TableView.h"

#include <algorithm>
#include <utility>

namespace tessivo::ui {

void TableView::setRows(std::vector<std::shared_ptr<TableViewCell>> rows, double rowHeight) {
    selected_.clear();
    for (const auto& cell : std::exchange(rows_, {})) {
        cell->willLeaveWindow();
        cell->removeFromSuperview();
    }
    rows_ = std::move(rows);
    rowHeight_ = rowHeight;
    for (const auto& cell : rows_)
        addSubview(*cell);
    setNeedsLayout();
    layoutIfNeeded();
}

std::optional<int> TableView::itemFor(const TableViewCell& cell) const {
    const auto found = std::ranges::find(rows_, &cell, [](const auto& row) { return row.get(); });
    return found == rows_.end() ? std::nullopt : std::optional(static_cast<int>(found - rows_.begin()));
}

void TableView::deleteItem(int row) {
    if (!has(row))
        return;
    const auto cell = rows_[static_cast<std::size_t>(row)];
    rows_.erase(rows_.begin() + row);
    std::set<int> selected;
    for (const int other : selected_) {
        if (other != row)
            selected.insert(other < row ? other : other - 1);
    }
    selected_ = std::move(selected);
    cell->willLeaveWindow();
    cell->removeFromSuperview();
    setNeedsLayout();
    layoutIfNeeded();
}

void TableView::tapCell(TableViewCell& cell) {
    if (const auto row = itemFor(cell))
        selectItem(*row);
}

void TableView::selectItem(int row) {
    if (!has(row))
        return;
    for (const int other : std::set(selected_))
        deselectItem(other);
    selected_.insert(row);
    rows_[static_cast<std::size_t>(row)]->setSelected(true);
}

void TableView::deselectItem(int row) {
    if (selected_.erase(row) > 0)
        rows_[static_cast<std::size_t>(row)]->setSelected(false);
}

void TableView::layoutSubviews() {
    double top = 0;
    for (const auto& cell : rows_) {
        cell->place({0, top, bounds().width, rowHeight_});
        top += rowHeight_;
    }
    setContentSize({bounds().width, top});
}

} // namespace tessivo::ui
