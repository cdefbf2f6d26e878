#pragma once

#include "Interface/Animation.h"
#include "SwipeCells/SwipeTableViewCell.h"
#include "fakes/FixedWidthTexts.h"
#include "fakes/Timeline.h"

#include <memory>
#include <string>
#include <vector>

namespace tessivo::swipe {

/// A table of swipeable cells, with an owner that records its calls.
class SwipeTable final : public SwipeTableViewCellDelegate, public std::enable_shared_from_this<SwipeTable> {
public:
    [[nodiscard]] static std::shared_ptr<SwipeTable> make(double width = 320, int items = 5) {
        auto owner = std::make_shared<SwipeTable>();
        owner->width = width;
        owner->table.setFrame({0, 0, width, 600});
        owner->table.setAnimations(&owner->animations);
        std::vector<std::shared_ptr<ui::TableViewCell>> rows;
        for (int item = 0; item < items; ++item) {
            rows.push_back(std::make_shared<SwipeTableViewCell>(
                SwipeEnvironment{owner->animations, owner->line, owner->texts, nullptr, {}}));
            static_cast<SwipeTableViewCell&>(*rows.back()).delegate = owner;
        }
        owner->table.setRows(std::move(rows), 100);
        return owner;
    }

    std::optional<SwipeActions> editActions(ui::TableView&, int, SwipeActionsOrientation side) override {
        return side == SwipeActionsOrientation::Left ? left : right;
    }
    SwipeOptions editActionsOptions(ui::TableView&, int, SwipeActionsOrientation) override { return options; }
    void willBeginEditing(ui::TableView&, int item, SwipeActionsOrientation) override {
        heard.push_back("begin " + std::to_string(item));
    }
    void didEndEditing(ui::TableView&, std::optional<int> item, SwipeActionsOrientation) override {
        heard.push_back("end " + (item ? std::to_string(*item) : "none"));
        if (ended)
            ended();
    }

    std::shared_ptr<SwipeAction> action(const std::string& title,
                                        SwipeActionStyle style = SwipeActionStyle::Default) {
        return std::make_shared<SwipeAction>(style, title, [this](SwipeAction& chosen, int item) {
            heard.push_back(*chosen.title + " " + std::to_string(item));
        });
    }
    ui::ScrollView& list() { return table; }
    [[nodiscard]] int count() const { return static_cast<int>(table.rows().size()); }
    void reload() { table.setRows(table.rows(), 100); }
    SwipeTableViewCell& cell(int item) {
        return static_cast<SwipeTableViewCell&>(*table.rows()[static_cast<std::size_t>(item)]);
    }
    ui::View& container(int item) { return cell(item); }
    ui::PanGestureRecognizer& pan(int item) { return *cell(item).swipeController().panGestureRecognizer(); }
    bool begin(int item, double velocity) { return pan(item).begin({width / 2, 50}, {0, 0}, {velocity, 0}); }
    /// The cell moves under the finger, which keeps its place on it less what the cell lags behind.
    void change(int item, double translation, double velocity) {
        const double moved = cell(item).frame().x;
        pan(item).change({width / 2 + translation - moved, 50}, {translation, 0}, {velocity, 0});
    }

    fakes::Timeline line;
    ui::Animations animations{line, line};
    fakes::FixedWidthTexts texts;
    double width = 320;
    std::optional<SwipeActions> left;
    std::optional<SwipeActions> right;
    SwipeOptions options;
    std::vector<std::string> heard;
    std::function<void()> ended; ///< what the owner does as it hears of the end
    ui::TableView table;
};

} // namespace tessivo::swipe
