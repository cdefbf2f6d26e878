#include "bridge/CollectionItem.h"

#include <algorithm>
#include <utility>

namespace tessivo::shell {
namespace {

/// So many cells that have left the screen keep their drawing: in a scrolled list they soon return.
constexpr int maximumParked = 8;

} // namespace

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

void CellItem::show(int item) {
    become(item, true);
}

void CellItem::park() {
    become(none, false);
}

void CellItem::become(int item, bool seen) {
    if (std::exchange(item_, item) == item && seen_ == seen)
        return;
    seen_ = seen;
    Q_EMIT itemChanged();
}

void CellItem::hover(std::optional<ui::Point> point) {
    bool onButton = false;
    for (LooseViewItem* item : attached_) {
        std::optional<QPointF> inside;
        if (point) {
            const ui::Rect cell = cell_->drawnFrame();
            const ui::Rect content = cell_->contentView.drawnFrame();
            inside = QPointF(point->x - cell.x - content.x, point->y - cell.y - content.y);
        }
        onButton = item->hover(inside) || onButton;
    }
    const bool hovered = point && !onButton;
    if (std::exchange(hovered_, hovered) != hovered)
        Q_EMIT hoveredChanged();
}

QStringList CellItem::actionNames() const {
    QStringList names;
    for (const auto& name : cell_->accessibilityActionNames())
        names.push_back(QString::fromStdString(name));
    return names;
}

QString CellItem::place() const {
    const auto* const collection = qobject_cast<const CollectionItem*>(parent()->parent());
    return collection->controlName + u'/' + QString::number(item_);
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

void CellModel::hover(const ui::CollectionViewCell* cell, ui::Point point) {
    for (CellItem* row : rows_)
        row->hover(&row->cell() == cell ? std::optional(point) : std::nullopt);
}

void CellModel::update() {
    int row = 0;
    for (const auto& cell : collection_.leavingCells())
        show(cell, CellItem::none, row++);
    for (const auto& [item, cell] : collection_.visibleCells())
        show(cell, item, row++);
    park(row);
}

void CellModel::show(const std::shared_ptr<ui::CollectionViewCell>& cell, int item, int row) {
    const auto found =
        std::ranges::find_if(rows_, [&](const CellItem* held) { return &held->cell() == cell.get(); });
    if (found != rows_.end()) {
        (*found)->show(item);
        bringTo(row, static_cast<int>(found - rows_.begin()));
        return;
    }
    auto* added = new CellItem(cell, context_, this);
    added->show(item);
    beginInsertRows({}, row, row);
    rows_.insert(rows_.begin() + row, added);
    endInsertRows();
}

void CellModel::park(int first) {
    const int last = std::min(first + maximumParked, static_cast<int>(rows_.size())) - 1;
    for (int row = static_cast<int>(rows_.size()) - 1; row > last; --row) {
        beginRemoveRows({}, row, row);
        rows_.back()->deleteLater();
        rows_.pop_back();
        endRemoveRows();
    }
    for (int row = first; row <= last; ++row)
        rows_[static_cast<std::size_t>(row)]->park();
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
          [this](ui::Point offset, bool animated) { Q_EMIT scrollRequested(offset.x, offset.y, animated); })),
      menus_(collection.onMenu([this](const ui::Menu& menu, ui::Point point) {
          menu_ = std::make_unique<MenuItem>(menu, this);
          Q_EMIT menuOpened(menu_.get(), point.x, point.y);
      })) {}

void CollectionItem::setSurroundings(double top, double bottom, double sides) {
    collection_.setSafeAreaInsets({top, 0, 0, 0});
    collection_.setRoomAtEnds(top, bottom);
    const ui::Insets margins{0, sides, 0, sides};
    if (collection_.layout().layoutMargins() == margins)
        return;
    collection_.layout().setLayoutMargins(margins);
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

bool CollectionItem::hover(double x, double y) {
    for (const auto& [item, cell] : collection_.visibleCells()) {
        if (cell->drawnFrame().contains({x, y})) {
            cells_.hover(cell.get(), {x, y});
            return true;
        }
    }
    cells_.hover(nullptr);
    return false;
}

} // namespace tessivo::shell
