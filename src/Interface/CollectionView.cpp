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
    if (auto& pool = pools_[reuseIdentifier]; !pool.empty()) {
        const auto cell = pool.front();
        pool.pop_front();
        cell->prepareForReuse();
        return cell;
    }
    const auto cell = factories_.at(reuseIdentifier)();
    kinds_.emplace(cell.get(), reuseIdentifier);
    return cell;
}

void CollectionView::reloadData() {
    selected_.clear();
    for (auto& [item, cell] : std::exchange(visible_, {}))
        retire(std::move(cell));
    const auto source = dataSource.lock();
    count_ = source ? source->numberOfItems(*this) : 0;
    prepareLayout();
    showVisibleCells();
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

void CollectionView::prepareLayout() {
    const auto asked = delegate.lock();
    const Size size = asked && count_ > 0 ? asked->sizeForItem(*this, 0) : Size{};
    layout_->prepare(count_, size, bounds().size());
    setContentSize(layout_->contentSize());
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
    const auto cell = source->cellForItem(*this, item);
    visible_.emplace(item, cell);
    addSubview(*cell);
    cell->place(layout_->frame(item));
    cell->layoutIfNeeded();
    if (selected_.contains(item))
        cell->setSelected(true);
    if (const auto told = delegate.lock())
        told->willDisplayCell(*this, *cell, item);
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

void CollectionView::scrollToItem(int item) {
    const Rect frame = layout_->frame(item);
    const auto centred = [](double middle, double window, double content) {
        return std::clamp(middle - window / 2, 0.0, std::max(content - window, 0.0));
    };
    setContentOffset({centred(frame.midX(), bounds().width, contentSize().width),
                      centred(frame.midY(), bounds().height, contentSize().height)});
}

void CollectionView::tapItem(int item) {
    if (item < 0 || item >= count_ || !takesActs())
        return;
    const auto told = delegate.lock();
    if (allowsMultipleSelection && selected_.contains(item)) {
        deselectItem(item);
        if (told)
            told->didDeselectItem(*this, item);
        return;
    }
    selectItem(item);
    if (told)
        told->didSelectItem(*this, item);
}

} // namespace tessivo::ui
