#pragma once

#include "Interface/CollectionView.h"
#include "bridge/ItemSet.h"
#include "bridge/LooseViewItem.h"
#include "bridge/MenuItem.h"
#include "bridge/ViewItem.h"

#include <QAbstractListModel>

#include <memory>
#include <optional>
#include <vector>

namespace tessivo::shell {

/// A cell for QML: its place in the collection and its controls by name.
class CellItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cells belong to the program")
    Q_PROPERTY(int item READ item NOTIFY itemChanged FINAL)
    Q_PROPERTY(bool seen READ seen NOTIFY itemChanged FINAL)
    Q_PROPERTY(bool selected READ selected NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool highlighted READ highlighted NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool lifted READ lifted NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool hovered READ hovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(QList<tessivo::shell::LooseViewItem*> attached READ attached NOTIFY attachedChanged FINAL)

public:
    static constexpr int none = -1;

    CellItem(std::shared_ptr<ui::CollectionViewCell> cell, const BridgeContext& context, QObject* parent);

    [[nodiscard]] const ui::CollectionViewCell& cell() const { return *cell_; }
    /// `none` for a cell that shows none any more.
    [[nodiscard]] int item() const { return item_; }
    /// Whether it is drawn. A cell off the screen is not; that of a deleted item is, until it has faded.
    [[nodiscard]] bool seen() const { return seen_; }
    [[nodiscard]] bool selected() const { return cell_->isSelected(); }
    [[nodiscard]] bool highlighted() const { return cell_->isHighlighted(); }
    [[nodiscard]] bool lifted() const { return cell_->isLifted(); }
    /// The mouse is over the cell, and over no button on it.
    [[nodiscard]] bool hovered() const { return hovered_; }
    /// The mouse is at a place of the collection's content, or not on the cell.
    void hover(std::optional<ui::Point> point);
    /// What can be done with the cell besides tapping it, by name.
    [[nodiscard]] QStringList actionNames() const;
    /// Does the first of that name; nothing where there is none.
    Q_INVOKABLE void act(const QString& name) {
        if (cell_->takesActs())
            cell_->performAccessibilityAction(name.toStdString());
    }
    /// The collection's name and the item's number, as one text.
    [[nodiscard]] QString place() const;
    /// What stands in the content without a name of its own.
    [[nodiscard]] QList<LooseViewItem*> attached() const { return attached_; }
    void show(int item);
    /// The cell has left the screen.
    void park();
    Q_INVOKABLE tessivo::shell::ViewItem* control(const QString& name) { return controls_.control(name); }

Q_SIGNALS:
    void itemChanged();
    void attachedChanged();
    void hoveredChanged();

private:
    std::shared_ptr<ui::CollectionViewCell> cell_;
    void follow();
    void become(int item, bool seen);

    ItemSet controls_;
    QList<LooseViewItem*> attached_;
    Subscription contentChanges_;
    int item_ = none;
    bool seen_ = false;
    bool hovered_ = false;
};

/// The cells on the screen, in the order of their items: the keyboard walks through them. Before them, and so
/// under them, come those of deleted items that fade; behind them some that have left the screen. Rows keep
/// their cell, so that QML keeps its drawing.
class CellModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cells belong to the program")

public:
    enum Role { Cell = Qt::UserRole };

    CellModel(ui::CollectionView& collection, const BridgeContext& context, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The mouse is at `point` of the content, over that cell, which may be null, and over no other.
    void hover(const ui::CollectionViewCell* cell, ui::Point point = {});

    /// Makes the rows those of the cells on the screen now.
    void update();

private:
    /// Brings a row forward to `index`, with as few moves as may be. All rows before that are in order.
    void bringTo(int index, int row);
    void moveRow(int from, int to);
    void show(const std::shared_ptr<ui::CollectionViewCell>& cell, int item, int row);
    /// The rows from `first` on hold cells that are off the screen.
    void park(int first);

    ui::CollectionView& collection_;
    const BridgeContext& context_;
    std::vector<CellItem*> rows_;
};

class CollectionItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Collections belong to the program")
    Q_PROPERTY(tessivo::shell::CellModel* cells READ cells CONSTANT FINAL)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY contentChanged FINAL)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY contentChanged FINAL)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool paging READ paging CONSTANT FINAL)
    Q_PROPERTY(double footInset READ footInset NOTIFY contentChanged FINAL)

public:
    CollectionItem(ui::CollectionView& collection, const BridgeContext& context, QObject* parent);

    [[nodiscard]] ui::CollectionView& view() const { return collection_; }
    [[nodiscard]] CellModel* cells() { return &cells_; }
    [[nodiscard]] int itemCount() const { return collection_.numberOfItems(); }
    [[nodiscard]] double contentWidth() const { return collection_.contentSize().width; }
    [[nodiscard]] double contentHeight() const { return collection_.contentSize().height; }

    /// What the program keeps free under the content.
    [[nodiscard]] double footInset() const { return collection_.contentInset().bottom; }

    /// Whether scrolling comes to rest at whole pages only.
    [[nodiscard]] bool paging() const { return collection_.isPagingEnabled; }

    /// What lies over the collection's upper and lower edge, and what its items keep away from at the sides.
    Q_INVOKABLE void setSurroundings(double top, double bottom, double sides);
    /// How large the collection is drawn.
    Q_INVOKABLE void resize(double width, double height);
    /// Where the user has scrolled to.
    Q_INVOKABLE void scrolledTo(double x, double y) { collection_.scrolledTo({x, y}); }
    /// The user taps an item.
    Q_INVOKABLE void tapItem(int item) { collection_.tapItem(item); }
    /// The user's finger begins to scroll, and lets go.
    Q_INVOKABLE void scrollBegan();
    Q_INVOKABLE void scrollEnded();
    /// The user turns to something else: what a swipe has left open closes, as it does for a scroll.
    Q_INVOKABLE void closeSwipes() { collection_.closeOpenCells(); }
    /// The user rests on an item, at a place of the content: its menu opens, or whatever else comes of it.
    Q_INVOKABLE void openMenu(int item, double x, double y) { collection_.holdItem(item, {x, y}); }
    Q_INVOKABLE void menuClosed() { collection_.menuClosed(); }
    /// The mouse is at a place of the content, or has left it. Says whether there is a cell.
    bool hover(double x, double y);
    void leaveHover() { cells_.hover(nullptr); }

Q_SIGNALS:
    /// The program scrolls.
    void scrollRequested(double x, double y, bool animated);
    /// The menu stays until the next one opens.
    void menuOpened(tessivo::shell::MenuItem* menu, double x, double y);

private:
    ui::CollectionView& collection_;
    CellModel cells_;
    std::unique_ptr<MenuItem> menu_;
    Subscription visibleCells_;
    Subscription scrollRequests_;
    Subscription menus_;
};

} // namespace tessivo::shell
