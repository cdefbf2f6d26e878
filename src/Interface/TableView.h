#pragma once

#include "Interface/CellList.h"
#include "Interface/CollectionViewCell.h"
#include "Interface/ScrollView.h"

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace tessivo::ui {

/// A row of a table is to its cell what an item of a collection is.
using TableViewCell = CollectionViewCell;

/// A short table: full-width rows one under the other, all of which stand at a time. Main thread.
class TableView final : public ScrollView, public CellList {
public:
    using ScrollView::ScrollView;

    /// Takes the place of all rows before; the selection is forgotten.
    void setRows(std::vector<std::shared_ptr<TableViewCell>> rows, double rowHeight);
    [[nodiscard]] const std::vector<std::shared_ptr<TableViewCell>>& rows() const { return rows_; }
    /// The row of the cell; empty if it is in no row.
    [[nodiscard]] std::optional<int> itemFor(const TableViewCell& cell) const;
    /// The rows behind move up. An unknown row is ignored.
    void deleteItem(int row);

    void tapCell(TableViewCell& cell) override;

    // Selection by the program.
    void selectItem(int row);
    void deselectItem(int row);
    [[nodiscard]] const std::set<int>& selectedItems() const { return selected_; }

protected:
    void layoutSubviews() override;

private:
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < static_cast<int>(rows_.size()); }

    std::vector<std::shared_ptr<TableViewCell>> rows_;
    std::set<int> selected_;
    double rowHeight_ = 0;
};

} // namespace tessivo::ui
