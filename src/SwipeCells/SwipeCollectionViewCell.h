#pragma once

#include "Interface/CollectionView.h"
#include "SwipeCells/SwipeCell.h"

namespace tessivo::swipe {

/// The owner of a collection whose cells swipe. Held weakly by the cells.
class SwipeCollectionViewCellDelegate {
public:
    virtual ~SwipeCollectionViewCellDelegate() = default;

    [[nodiscard]] virtual std::optional<SwipeActions> editActions(ui::CollectionView&, int item,
                                                                  SwipeActionsOrientation) = 0;
    [[nodiscard]] virtual SwipeOptions editActionsOptions(ui::CollectionView&, int /*item*/,
                                                          SwipeActionsOrientation) {
        return {};
    }
    virtual void willBeginEditing(ui::CollectionView&, int /*item*/, SwipeActionsOrientation) {}
    /// Without an item where the collection has none for the cell any more.
    virtual void didEndEditing(ui::CollectionView&, std::optional<int> /*item*/, SwipeActionsOrientation) {}
    /// The part of the collection that the user sees, in its own space; empty for no say.
    [[nodiscard]] virtual std::optional<ui::Rect> visibleRect(ui::CollectionView&) { return std::nullopt; }
};

/// A cell of a collection that swipes: its content view is what moves.
class SwipeCollectionViewCell : public SwipeCell {
public:
    explicit SwipeCollectionViewCell(SwipeEnvironment environment)
        : SwipeCell(std::move(environment), Container::ContentView) {}

    std::weak_ptr<SwipeCollectionViewCellDelegate> delegate;

    /// The collection that holds the cell; null where none does.
    [[nodiscard]] ui::CollectionView* collectionView() const;
    [[nodiscard]] std::optional<int> indexPath() const override;

protected:
    [[nodiscard]] ui::ScrollView* list() const override { return collectionView(); }
    void deleteItem(int item) override;
    void selectItem(int item) override;
    void deselectItem(int item) override;
    [[nodiscard]] std::optional<SwipeActions> ownersActions(int item, SwipeActionsOrientation side) override;
    [[nodiscard]] std::optional<SwipeOptions> ownersOptions(int item, SwipeActionsOrientation side) override;
    void tellWillBegin(int item, SwipeActionsOrientation side) override;
    void tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) override;
    [[nodiscard]] std::optional<ui::Rect> ownersVisibleRect() override;
    [[nodiscard]] bool covers(const ui::Rect& frame, ui::Point point) const override;
};

} // namespace tessivo::swipe
