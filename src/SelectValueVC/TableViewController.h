#pragma once

#include "Interface/CollectionView.h"
#include "Interface/ViewController.h"
#include "Ports/Console.h"

namespace tessivo {

/// Notified of each choice made in the value picker. Held weakly; must be idempotent, since the same choice
/// may be reported twice.
class TableViewControllerDelegate {
public:
    virtual ~TableViewControllerDelegate() = default;
    virtual void didSelectValue(const std::string& title, int index) = 0;
};

/// A sheet with a short list of texts of which one is chosen. It reports the present choice to its delegate
/// once as it opens, then each tap at once, and stays until the user drags it away.
class TableViewController final : public ui::ViewController,
                                  public ui::CollectionViewDataSource,
                                  public ui::CollectionViewDelegate {
public:
    TableViewController(ui::WindowContext& window, Console& console);

    /// A picker that is ready to be presented, as a sheet of `height` points. `title` is for assistive
    /// technology only.
    [[nodiscard]] static std::shared_ptr<TableViewController>
    make(ui::WindowContext& window, Console& console, std::string title, std::vector<std::string> texts,
         int selectedItem, std::weak_ptr<TableViewControllerDelegate> delegate, double height);

    std::vector<std::string> dataArray;
    /// The choice at the opening. It keeps its first value: the row comes back marked whenever it is drawn
    /// anew.
    int selectedItem = 0;
    std::weak_ptr<TableViewControllerDelegate> delegate;

    ui::View IslandView{controls, "IslandView"};
    ui::CollectionView tableView;

    [[nodiscard]] std::string screenName() const override { return "TableViewController"; }

    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collection, int item) override;
    void didSelectItem(ui::CollectionView& collection, int item) override;

protected:
    void viewDidLoad() override;

private:
    Console& console_;
    std::string title_;
};

} // namespace tessivo
