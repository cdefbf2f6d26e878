#pragma once

#include "Interface/CellList.h"
#include "Interface/CollectionLayout.h"
#include "Interface/CollectionViewCell.h"
#include "Interface/Menu.h"
#include "Interface/ScrollView.h"

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace tessivo::ui {

class CollectionView;

/// Gives a collection its items and cells. Held weakly by it.
class CollectionViewDataSource {
public:
    virtual ~CollectionViewDataSource() = default;

    [[nodiscard]] virtual int numberOfItems(CollectionView& collection) = 0;
    /// A cell for the item, from `dequeueReusableCell`, filled.
    [[nodiscard]] virtual std::shared_ptr<CollectionViewCell> cellForItem(CollectionView& collection,
                                                                          int item) = 0;
};

/// Hears of a collection's life and answers for its looks. Held weakly by it.
class CollectionViewDelegate {
public:
    virtual ~CollectionViewDelegate() = default;

    /// The size of all items, requested for item 0 once per layout: items of a collection share one size.
    [[nodiscard]] virtual Size sizeForItem(CollectionView&, int /*item*/) { return {}; }
    virtual void willDisplayCell(CollectionView&, CollectionViewCell&, int /*item*/) {}
    virtual void didSelectItem(CollectionView&, int /*item*/) {}
    virtual void didDeselectItem(CollectionView&, int /*item*/) {}
    /// The user's finger rests on the item, which has no menu. Says whether anything came of it.
    virtual bool didHoldItem(CollectionView&, int /*item*/) { return false; }
    /// The menu of a long press; empty for none.
    [[nodiscard]] virtual std::optional<Menu> contextMenuForItem(CollectionView&, int /*item*/, Point) {
        return std::nullopt;
    }
};

/// Items laid out by a layout, of which only those on the screen have a cell.
///
/// Cells that leave the screen go to the pool of their kind and come out of it in the order in which they
/// went in. At a reload all do, and each item that stays on the screen gets the very cell that it had. A cell
/// is told `prepareForReuse` as it comes out. Main thread.
class CollectionView final : public ScrollView, public CellList {
public:
    CollectionView(ControlRegistry& registry, std::string name, std::unique_ptr<CollectionLayout> layout);

    using CellFactory = std::function<std::shared_ptr<CollectionViewCell>()>;
    void registerCell(std::string reuseIdentifier, CellFactory make);
    /// A cell from the pool, or a new one. The kind must be registered.
    [[nodiscard]] std::shared_ptr<CollectionViewCell> dequeueReusableCell(const std::string& reuseIdentifier);

    std::weak_ptr<CollectionViewDataSource> dataSource;
    std::weak_ptr<CollectionViewDelegate> delegate;
    bool allowsMultipleSelection = false;

    /// Asks anew for the count and for the cells on the screen. The selection is forgotten. While a finger is
    /// on a cell it waits until that goes, or until scrolling needs further cells.
    void reloadData();
    /// A finger is on a cell.
    [[nodiscard]] bool isTouched() const { return fingers_ > 0; }
    /// The items are in the data source already; those behind them move on. Cells on the screen stay theirs.
    void insertItems(int first, int count);
    /// The item is out of the data source already. Cells on the screen stay theirs. On a screen the item's
    /// cell fades where it stood while those behind it move up; until that has ended it shows no item and is
    /// handed to none.
    void deleteItem(int item);
    /// Lays the items out anew, as after a change of size; asks for no count.
    void invalidateLayout();

    [[nodiscard]] int numberOfItems() const { return count_; }
    [[nodiscard]] CollectionLayout& layout() { return *layout_; }
    /// The item's cell; null where it is not on the screen.
    [[nodiscard]] std::shared_ptr<CollectionViewCell> cellForItem(int item) const;
    [[nodiscard]] std::optional<int> itemFor(const CollectionViewCell& cell) const;
    /// The cells on the screen, by item.
    [[nodiscard]] const std::map<int, std::shared_ptr<CollectionViewCell>>& visibleCells() const {
        return visible_;
    }
    /// The cells of deleted items that are still seen.
    [[nodiscard]] const std::vector<std::shared_ptr<CollectionViewCell>>& leavingCells() const {
        return leaving_;
    }

    // Selection by the program does not notify the delegate.
    void selectItem(int item);
    void deselectItem(int item);
    [[nodiscard]] const std::set<int>& selectedItems() const { return selected_; }
    /// Scrolls so that the item stands in the middle, as far as the content allows.
    void scrollToItem(int item, bool animated = false);

    /// The user taps the item: it becomes selected, or, where several may be, changes over. The delegate
    /// hears it.
    void tapItem(int item);
    /// The user rests on the item, at `point` of the content: its menu opens and its cell is lifted, or,
    /// where there is no menu, the delegate hears it. Says whether anything came of it.
    bool holdItem(int item, Point point);
    /// The user has closed the menu, or chosen of it.
    void menuClosed();
    /// Hears what menu to open, and where in the content.
    [[nodiscard]] Subscription onMenu(std::function<void(const Menu& menu, Point point)> opened) {
        return menus_.subscribe(std::move(opened));
    }

    void tapCell(CollectionViewCell& cell) override;
    bool holdCell(CollectionViewCell& cell, Point point) override;
    void fingerCame() override { ++fingers_; }
    void fingerGoes(const std::function<void()>& act) override;

    /// Hears when other cells are on the screen or leaving it, or when they lie elsewhere.
    [[nodiscard]] Subscription onVisibleCellsChange(std::function<void()> changed) {
        return visibleCellsChanges_.subscribe(std::move(changed));
    }

protected:
    void didScroll() override { showVisibleCells(); }
    void layoutSubviews() override { invalidateLayout(); }

private:
    void reload();
    void prepareLayout();
    using Pool = std::deque<std::shared_ptr<CollectionViewCell>>;
    [[nodiscard]] Pool::iterator pooledCell(Pool& pool);
    void showVisibleCells();
    void show(int item);
    void retire(std::shared_ptr<CollectionViewCell> cell);
    void leave(std::shared_ptr<CollectionViewCell> cell);
    void closeGap(const std::map<int, Rect>& before);
    void hasLeft(const std::shared_ptr<CollectionViewCell>& cell);
    void moveItems(int from, int by);

    std::unique_ptr<CollectionLayout> layout_;
    std::map<std::string, CellFactory> factories_;
    std::map<std::string, Pool> pools_;
    std::map<const CollectionViewCell*, std::string> kinds_;
    std::map<int, std::shared_ptr<CollectionViewCell>> visible_;
    std::vector<std::shared_ptr<CollectionViewCell>> leaving_;
    std::set<int> selected_;
    std::map<int, const CollectionViewCell*>
        former_; ///< the cells that items had, while a reload is under way
    std::shared_ptr<CollectionViewCell> lifted_;
    int count_ = 0;
    int itemShown_ = 0; ///< the item that a cell is asked for
    int fingers_ = 0;
    bool reloadWaits_ = false;
    Signal<> visibleCellsChanges_;
    Signal<const Menu&, Point> menus_;
};

} // namespace tessivo::ui
