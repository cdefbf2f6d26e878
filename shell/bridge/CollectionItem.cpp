#include "bridge/CollectionItem.h"

#include <algorithm>

namespace tessivo::shell {

CellItem::CellItem(std::shared_ptr<ui::CollectionViewCell> cell, const BridgeContext& context,
                   QObject* parent)
    : ViewItem(*cell, context, parent),
      cell_(std::move(cell)),
      controls_(cell_->controls, context, this),
      contentChanges_(cell_->contentView.onChange([this](ui::ViewChange change) {
          if (change == ui::ViewChange::Hierarchy)
              follow();
      })) {
    follow();
}

void CellItem::follow() {
    const auto& named = cell_->controls.all();
    const bool hadAny = !attached_.isEmpty();
    for (LooseViewItem* item : std::exchange(attached_, {}))
        item->deleteLater();
    for (ui::View* view : cell_->contentView.subviews()) {
        if (std::ranges::none_of(named, [&](const auto& entry) { return entry.second == view; }))
            attached_.push_back(new LooseViewItem(*view, context(), this));
    }
    if (hadAny || !attached_.isEmpty())
        Q_EMIT attachedChanged();
}

void CellItem::setItem(int item) {
    if (std::exchange(item_, item) != item)
        Q_EMIT itemChanged();
}

CellModel::CellModel(ui::CollectionView& collection, const BridgeContext& context, QObject* parent)
    : QAbstractListModel(parent), collection_(collection), context_(context) {
    update();
}

int CellModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant CellModel::data(const QModelIndex& index, int role) const {
    if (role != Cell || !index.isValid())
        return {};
    return QVariant::fromValue(rows_[static_cast<std::size_t>(index.row())]);
}

QHash<int, QByteArray> CellModel::roleNames() const {
    return {{Cell, "cell"}};
}

void CellModel::update() {
    const auto& visible = collection_.visibleCells();
    const auto itemOf = [&](const CellItem& row) { return collection_.itemFor(row.cell()); };
    for (std::size_t row = rows_.size(); row > 0; --row) {
        if (itemOf(*rows_[row - 1]))
            continue;
        const int index = static_cast<int>(row) - 1;
        beginRemoveRows({}, index, index);
        rows_[row - 1]->deleteLater();
        rows_.erase(rows_.begin() + index);
        endRemoveRows();
    }
    int index = 0;
    for (const auto& [item, cell] : visible) {
        const auto found =
            std::ranges::find_if(rows_, [&](const CellItem* row) { return &row->cell() == cell.get(); });
        if (found == rows_.end()) {
            auto* added = new CellItem(cell, context_, this);
            added->setItem(item);
            beginInsertRows({}, index, index);
            rows_.insert(rows_.begin() + index, added);
            endInsertRows();
        } else {
            (*found)->setItem(item);
            bringTo(index, static_cast<int>(found - rows_.begin()));
        }
        ++index;
    }
}

void CellModel::bringTo(int index, int row) {
    const int last = static_cast<int>(rows_.size()) - 1;
    // Cells that left at one end of the screen have come back at the other.
    if (row - index > last - row)
        return moveRow(row, index);
    for (; row > index; --row)
        moveRow(index, last);
}

void CellModel::moveRow(int from, int to) {
    const auto row = [this](int index) { return rows_.begin() + index; };
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    if (from < to)
        std::rotate(row(from), row(from + 1), row(to + 1));
    else
        std::rotate(row(to), row(from), row(from + 1));
    endMoveRows();
}

CollectionItem::CollectionItem(ui::CollectionView& collection, const BridgeContext& context, QObject* parent)
    : ViewItem(collection, context, parent),
      collection_(collection),
      cells_(collection, context, this),
      visibleCells_(collection.onVisibleCellsChange([this] {
          collection_.layoutIfNeeded();
          cells_.update();
      })),
      scrollRequests_(collection.onScrollRequest(
          [this](ui::Point offset) { Q_EMIT scrollRequested(offset.x, offset.y); })) {}

void CollectionItem::setSurroundings(double top, double sides) {
    collection_.setSafeAreaInsets({top, 0, 0, 0});
    collection_.layout().setLayoutMargins({0, sides, 0, sides});
    collection_.invalidateLayout();
}

void CollectionItem::resize(double width, double height) {
    ui::Rect frame = collection_.frame();
    if (frame.width == width && frame.height == height)
        return;
    frame.width = width;
    frame.height = height;
    collection_.setFrame(frame);
    collection_.layoutIfNeeded();
}

void CollectionItem::scrollBegan() {
    collection_.panGestureRecognizer()->begin({}, {}, {});
}

void CollectionItem::scrollEnded() {
    collection_.panGestureRecognizer()->end({});
}

bool CollectionItem::openMenu(int item, double x, double y) {
    const auto delegate = collection_.delegate.lock();
    if (!delegate)
        return false;
    auto menu = delegate->contextMenuForItem(collection_, item, {x, y});
    if (!menu)
        return delegate->didHoldItem(collection_, item);
    menu_ = std::make_unique<MenuItem>(std::move(*menu), this);
    Q_EMIT menuOpened(menu_.get(), x, y);
    return true;
}

} // namespace tessivo::shell
