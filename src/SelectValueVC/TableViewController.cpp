#include "SelectValueVC/TableViewController.h"

#include "SelectValueVC/TableViewCell.h"

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "cell";
constexpr double rowHeight = 52;

} // namespace

TableViewController::TableViewController(ui::WindowContext& window, Console& console)
    : ViewController(window),
      tableView(controls, "tableView", std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0)),
      console_(console) {
    modalPresentationStyle = ui::PresentationStyle::Sheet;
}

std::shared_ptr<TableViewController>
TableViewController::make(ui::WindowContext& window, Console& console, std::string title,
                          std::vector<std::string> texts, int selectedItem,
                          std::weak_ptr<TableViewControllerDelegate> delegate, double height) {
    const auto picker = std::make_shared<TableViewController>(window, console);
    picker->title_ = std::move(title);
    picker->dataArray = std::move(texts);
    picker->selectedItem = selectedItem;
    picker->delegate = std::move(delegate);
    picker->sheetPresentation.height = window.screen.rowHeight(height);
    return picker;
}

void TableViewController::viewDidLoad() {
    view().setAccessibilityName(title_);
    tableView.setAccessibilityName(title_);
    view().addSubview(IslandView);
    view().addSubview(tableView);
    view().setBackgroundColor(ui::ColorRef::white());
    IslandView.setBackgroundColor(ui::ColorRef::named("Line"));
    tableView.registerCell(reuseIdentifier, [] { return std::make_shared<TableViewCell>(); });
    tableView.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    tableView.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    tableView.reloadData();
    if (selectedItem >= 0 && static_cast<std::size_t>(selectedItem) < dataArray.size()) {
        tableView.selectItem(selectedItem);
        didSelectItem(tableView, selectedItem);
    }
}

int TableViewController::numberOfItems(ui::CollectionView&) {
    return static_cast<int>(dataArray.size());
}

std::shared_ptr<ui::CollectionViewCell> TableViewController::cellForItem(ui::CollectionView& collection,
                                                                         int item) {
    const auto cell =
        std::static_pointer_cast<TableViewCell>(collection.dequeueReusableCell(reuseIdentifier));
    cell->label.setText(dataArray[static_cast<std::size_t>(item)]);
    if (item == selectedItem)
        cell->setSelected(true);
    return cell;
}

ui::Size TableViewController::sizeForItem(ui::CollectionView& collection, int) {
    return {collection.bounds().width, window().screen.rowHeight(rowHeight)};
}

void TableViewController::didSelectItem(ui::CollectionView&, int item) {
    if (item < 0 || static_cast<std::size_t>(item) >= dataArray.size())
        console_.stopProgram("The value picker has no row " + std::to_string(item) + ".");
    if (const auto listener = delegate.lock())
        listener->didSelectValue(dataArray[static_cast<std::size_t>(item)], item);
}

} // namespace tessivo
