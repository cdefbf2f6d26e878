#include "Interface/CollectionView.h"

#include "Interface/Animation.h"

#include <algorithm>
#include <utility>

namespace tessivo::ui {
namespace {

constexpr EaseInOut deletion{Seconds(0.3)};

} // namespace

CollectionView::CollectionView(ControlRegistry& registry, std::string name,
                               std::unique_ptr<CollectionLayout> layout)
    : ScrollView(registry, std::move(name)), layout_(std::move(layout)) {}

void CollectionView::registerCell(std::string reuseIdentifier, CellFactory make) {
    factories_.insert_or_assign(std::move(reuseIdentifier), std::move(make));
}

std::shared_ptr<CollectionViewCell> CollectionView::dequeueReusableCell(const std::string& reuseIdentifier) {
    auto& pool = pools_[reuseIdentifier];
    if (const auto found = pooledCell(pool); found != pool.end()) {
        const auto cell = *found;
        pool.erase(found);
        cell->prepareForReuse();
        return cell;
    }
    const auto cell = factories_.at(reuseIdentifier)();
    kinds_.emplace(cell.get(), reuseIdentifier);
    return cell;
}

/// The cell that the item has had; else the first that no other item keeps.
CollectionView::Pool::iterator CollectionView::pooledCell(Pool& pool) {
    if (const auto own = former_.extract(itemShown_)) {
        const auto found = std::ranges::find(pool, own.mapped(), &std::shared_ptr<CollectionViewCell>::get);
        if (found != pool.end())
            return found;
    }
    const ItemRange staying = layout_->itemsIn(bounds());
    return std::ranges::find_if(pool, [&](const auto& cell) {
        return std::ranges::none_of(former_, [&](const auto& kept) {
            return kept.second == cell.get() && staying.contains(kept.first);
        });
    });
}

void CollectionView::reloadData() {
    reloadWaits_ = isTouched();
    if (!reloadWaits_)
        reload();
}

void CollectionView::reload() {
    selected_.clear();
    for (auto& [item, cell] : std::exchange(visible_, {})) {
        former_.emplace(item, cell.get());
        retire(std::move(cell));
    }
    const auto source = dataSource.lock();
    count_ = source ? source->numberOfItems(*this) : 0;
    prepareLayout();
    showVisibleCells();
    former_.clear();
    visibleCellsChanges_.emit();
}

void CollectionView::insertItems(int first, int count) {
    count_ += count;
    moveItems(first, count);
    invalidateLayout();
}

void CollectionView::deleteItem(int item) {
    if (item < 0 || item >= count_)
        return;
    std::map<int, Rect> before; // where the items stand now, by their numbers afterwards
    const ItemRange range = layout_->itemsIn(bounds());
    for (int old = range.begin; old < std::min(range.end + 1, count_); ++old)
        before.emplace(old < item ? old : old - 1, layout_->frame(old));
    --count_;
    selected_.erase(item);
    auto cell = visible_.extract(item);
    moveItems(item + 1, -1);
    if (!animations()) {
        if (cell)
            retire(std::move(cell.mapped()));
        invalidateLayout();
        return;
    }
    if (cell)
        leave(std::move(cell.mapped()));
    closeGap(before);
}

/// The cell stays behind the others, where its item was.
void CollectionView::leave(std::shared_ptr<CollectionViewCell> cell) {
    insertSubview(*cell, 0);
    leaving_.push_back(cell);
    const auto fade = PropertyAnimator::make(*animations(), deletion);
    fade->addAnimations([cell] { cell->setAlpha(0); });
    fade->addCompletion([this, alive = lifetime(), cell](AnimatingPosition) {
        if (!alive.expired())
            hasLeft(cell);
    });
    fade->startAnimation();
}

void CollectionView::hasLeft(const std::shared_ptr<CollectionViewCell>& cell) {
    std::erase(leaving_, cell);
    cell->setAlpha(1);
    retire(cell);
    visibleCellsChanges_.emit();
}

/// Cells that come onto the screen start from where their items stood, too.
void CollectionView::closeGap(const std::map<int, Rect>& before) {
    prepareLayout();
    showVisibleCells();
    for (const auto& [item, cell] : visible_) {
        if (const auto start = before.find(item); start != before.end())
            cell->place(start->second);
    }
    const auto moves = PropertyAnimator::make(*animations(), deletion);
    moves->addAnimations([this] {
        for (const auto& [item, cell] : visible_)
            cell->place(layout_->frame(item));
    });
    moves->startAnimation();
    visibleCellsChanges_.emit();
}

void CollectionView::moveItems(int from, int by) {
    std::map<int, std::shared_ptr<CollectionViewCell>> visible;
    for (auto& [item, cell] : visible_)
        visible.emplace(item < from ? item : item + by, std::move(cell));
    visible_ = std::move(visible);
    std::set<int> selected;
    for (const int item : selected_)
        selected.insert(item < from ? item : item + by);
    selected_ = std::move(selected);
}

void CollectionView::invalidateLayout() {
    prepareLayout();
    showVisibleCells();
    for (const auto& [item, cell] : visible_)
        cell->place(layout_->frame(item));
    visibleCellsChanges_.emit();
}

/// Before any cell is asked for: past the end of content that has become shorter there is nothing to show.
void CollectionView::prepareLayout() {
    const Point end = lastOffset();
    const auto listener = delegate.lock();
    const Size size = listener && count_ > 0 ? listener->sizeForItem(*this, 0) : Size{};
    layout_->prepare(count_, size, bounds().size());
    setContentSize(layout_->contentSize());
    const auto now = contentOffset();
    const auto held = nearestOffset(now);
    const Point kept{lastOffset().x < end.x ? std::min(now.x, held.x) : now.x,
                     lastOffset().y < end.y ? std::min(now.y, held.y) : now.y};
    if (kept != now)
        setContentOffset(kept);
}

void CollectionView::showVisibleCells() {
    const ItemRange range = layout_->itemsIn(bounds());
    bool changed = false;
    for (auto entry = visible_.begin(); entry != visible_.end();) {
        if (range.contains(entry->first)) {
            ++entry;
            continue;
        }
        retire(std::move(entry->second));
        entry = visible_.erase(entry);
        changed = true;
    }
    for (int item = range.begin; item < range.end; ++item) {
        if (!visible_.contains(item)) {
            // What the list has at this item now does not go with the cells of before.
            if (std::exchange(reloadWaits_, false))
                return reload();
            show(item);
            changed = true;
        }
    }
    if (changed)
        visibleCellsChanges_.emit();
}

void CollectionView::show(int item) {
    const auto source = dataSource.lock();
    if (!source)
        return;
    itemShown_ = item;
    const auto cell = source->cellForItem(*this, item);
    visible_.emplace(item, cell);
    addSubview(*cell);
    cell->place(layout_->frame(item));
    cell->layoutIfNeeded();
    if (selected_.contains(item))
        cell->setSelected(true);
    if (const auto listener = delegate.lock())
        listener->willDisplayCell(*this, *cell, item);
}

void CollectionView::retire(std::shared_ptr<CollectionViewCell> cell) {
    cell->willLeaveWindow();
    cell->removeFromSuperview();
    const auto& kind = kinds_.at(cell.get());
    pools_[kind].push_back(std::move(cell));
}

std::shared_ptr<CollectionViewCell> CollectionView::cellForItem(int item) const {
    const auto found = visible_.find(item);
    return found == visible_.end() ? nullptr : found->second;
}

std::optional<int> CollectionView::itemFor(const CollectionViewCell& cell) const {
    const auto found =
        std::ranges::find_if(visible_, [&](const auto& entry) { return entry.second.get() == &cell; });
    return found == visible_.end() ? std::nullopt : std::optional(found->first);
}

void CollectionView::selectItem(int item) {
    if (!allowsMultipleSelection) {
        for (const int other : std::set(selected_))
            deselectItem(other);
    }
    selected_.insert(item);
    if (const auto cell = cellForItem(item))
        cell->setSelected(true);
}

void CollectionView::deselectItem(int item) {
    selected_.erase(item);
    if (const auto cell = cellForItem(item))
        cell->setSelected(false);
}

void CollectionView::scrollToItem(int item, bool animated) {
    const Rect frame = layout_->frame(item);
    const auto centred = [](double middle, double window, double content) {
        return std::clamp(middle - window / 2, 0.0, std::max(content - window, 0.0));
    };
    setContentOffset({centred(frame.midX(), bounds().width, contentSize().width),
                      centred(frame.midY(), bounds().height, contentSize().height)},
                     animated);
}

void CollectionView::tapItem(int item) {
    if (item < 0 || item >= count_ || !takesActs())
        return;
    const auto listener = delegate.lock();
    if (allowsMultipleSelection && selected_.contains(item)) {
        deselectItem(item);
        if (listener)
            listener->didDeselectItem(*this, item);
        return;
    }
    selectItem(item);
    if (listener)
        listener->didSelectItem(*this, item);
}

bool CollectionView::holdItem(int item, Point point) {
    const auto listener = delegate.lock();
    if (!listener || item < 0 || item >= count_ || !takesActs())
        return false;
    const auto menu = listener->contextMenuForItem(*this, item, point);
    if (!menu)
        return listener->didHoldItem(*this, item);
    menuClosed();
    lifted_ = cellForItem(item);
    if (lifted_)
        lifted_->setLifted(true);
    menus_.emit(*menu, point);
    return true;
}

void CollectionView::menuClosed() {
    if (const auto cell = std::exchange(lifted_, nullptr))
        cell->setLifted(false);
}

void CollectionView::tapCell(CollectionViewCell& cell) {
    if (const auto item = itemFor(cell))
        tapItem(*item);
}

bool CollectionView::holdCell(CollectionViewCell& cell, Point point) {
    const auto item = itemFor(cell);
    return item && holdItem(*item, point);
}

void CollectionView::fingerGoes(const std::function<void()>& act) {
    const auto alive = lifetime();
    --fingers_;
    act();
    if (!alive.expired() && !isTouched() && std::exchange(reloadWaits_, false))
        reload();
}

} // namespace tessivo::ui
