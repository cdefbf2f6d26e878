#pragma once

#include "Interface/Animation.h"
#include "Interface/CollectionView.h"
#include "SwipeCells/SwipeCollectionViewCell.h"
#include "fakes/FixedWidthTexts.h"
#include "fakes/Timeline.h"

#include <memory>
#include <string>
#include <vector>

namespace tessivo::swipe {

/// Records haptic feedback, and when it is prepared.
class CountingImpacts final : public ImpactGenerator {
public:
    void prepare() override { acts += "p"; }
    void impactOccurred() override {
        acts += "i";
        ++count;
    }

    int count = 0;
    std::string acts; ///< p: prepared, i: felt
};

/// A collection of swipeable cells, with an owner that records its calls.
class SwipeList : public ui::CollectionViewDataSource,
                  public ui::CollectionViewDelegate,
                  public SwipeCollectionViewCellDelegate,
                  public std::enable_shared_from_this<SwipeList> {
public:
    [[nodiscard]] static std::shared_ptr<SwipeList> make(double width = 320, int items = 5) {
        auto list = std::make_shared<SwipeList>();
        list->width = width;
        list->items = items;
        list->collection.setFrame({0, 0, width, 600});
        list->collection.setAnimations(&list->animations);
        list->collection.dataSource = list;
        list->collection.delegate = list;
        list->collection.registerCell("cell", [weak = list.get()] {
            return std::make_shared<SwipeCollectionViewCell>(weak->environment());
        });
        list->collection.reloadData();
        list->collection.layoutIfNeeded();
        return list;
    }

    SwipeEnvironment environment() {
        return {animations, line, texts, &impacts, [this] { return screenReader; }};
    }
    int numberOfItems(ui::CollectionView&) override { return items; }
    std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& list, int) override {
        auto made = list.dequeueReusableCell("cell");
        static_cast<SwipeCollectionViewCell&>(*made).delegate = weak_from_this();
        return made;
    }
    ui::Size sizeForItem(ui::CollectionView&, int) override { return {width, 100}; }

    std::optional<SwipeActions> editActions(ui::CollectionView&, int, SwipeActionsOrientation side) override {
        return side == SwipeActionsOrientation::Left ? left : right;
    }
    SwipeOptions editActionsOptions(ui::CollectionView&, int, SwipeActionsOrientation) override {
        return options;
    }
    void willBeginEditing(ui::CollectionView&, int item, SwipeActionsOrientation) override {
        heard.push_back("begin " + std::to_string(item));
    }
    void didEndEditing(ui::CollectionView&, std::optional<int> item, SwipeActionsOrientation) override {
        heard.push_back("end " + (item ? std::to_string(*item) : "none"));
    }
    std::optional<ui::Rect> visibleRect(ui::CollectionView&) override { return visible; }

    std::shared_ptr<SwipeAction> action(const std::string& title,
                                        SwipeActionStyle style = SwipeActionStyle::Default) {
        return std::make_shared<SwipeAction>(style, title, [this](SwipeAction& chosen, int item) {
            heard.push_back(*chosen.title + " " + std::to_string(item));
        });
    }

    SwipeCollectionViewCell& cell(int item) {
        return static_cast<SwipeCollectionViewCell&>(*collection.cellForItem(item));
    }
    ui::ScrollView& list() { return collection; }
    [[nodiscard]] int count() const { return collection.numberOfItems(); }
    void reload() { collection.reloadData(); }
    ui::View& container(int item) { return cell(item).contentView; }
    ui::PanGestureRecognizer& pan(int item) { return *cell(item).swipeController().panGestureRecognizer(); }
    /// The finger starts in the middle of the cell.
    bool begin(int item, double velocity) { return pan(item).begin({width / 2, 50}, {0, 0}, {velocity, 0}); }
    void change(int item, double translation, double velocity) {
        pan(item).change({width / 2 + translation, 50}, {translation, 0}, {velocity, 0});
    }
    /// A pan that opens the right row of the item, settled.
    void open(int item) {
        begin(item, -100);
        change(item, -60, -100);
        pan(item).end({-100, 0});
        line.advance(Seconds(3));
    }
    double centerX(int item) { return cell(item).contentView.center().x; }

    fakes::Timeline line;
    ui::Animations animations{line, line};
    fakes::FixedWidthTexts texts;
    CountingImpacts impacts;
    bool screenReader = false;
    double width = 320;
    int items = 5;
    std::optional<SwipeActions> left;
    std::optional<SwipeActions> right;
    SwipeOptions options;
    std::optional<ui::Rect> visible;
    std::vector<std::string> heard;
    ui::ControlRegistry controls;
    ui::CollectionView collection{controls, "collection",
                                  std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0)};
};

} // namespace tessivo::swipe
