#pragma once

#include "Interface/ViewController.h"

namespace tessivo::ui {

class TabBarController;

/// Notified of the tab that is shown. Held weakly.
class TabBarControllerDelegate {
public:
    virtual ~TabBarControllerDelegate() = default;
    virtual void didSelectViewController(TabBarController& tabs, ViewController& selected) = 0;
};

struct TabBarItem {
    std::string title;
    std::string imageName;
    std::string selectedImageName;
    ColorRef titleColor;
    ColorRef selectedTitleColor;
};

/// The bar of tabs at the foot of the screen.
class TabBar final : public View {
public:
    using View::View;

    [[nodiscard]] const std::vector<TabBarItem>& items() const { return items_; }
    void setItems(std::vector<TabBarItem> items) {
        items_ = std::move(items);
        notify(ViewChange::Content);
    }
    /// The item to be changed; the index must be one of the bar's.
    void changeItem(std::size_t index, const std::function<void(TabBarItem&)>& change) {
        change(items_.at(index));
        notify(ViewChange::Content);
    }

private:
    std::vector<TabBarItem> items_;
};

/// Screens side by side, of which one shows. Each is loaded at its first showing; appearance calls go to the
/// one that shows.
class TabBarController : public ViewController {
public:
    using ViewController::ViewController;

    TabBar tabBar{controls, "tabBar"};
    std::weak_ptr<TabBarControllerDelegate> delegate;

    /// One item for each screen. The first shows until another is selected.
    void setViewControllers(std::vector<std::shared_ptr<ViewController>> screens,
                            std::vector<TabBarItem> items);
    [[nodiscard]] const std::vector<std::shared_ptr<ViewController>>& viewControllers() const {
        return screens_;
    }
    [[nodiscard]] std::size_t selectedIndex() const { return selected_; }
    [[nodiscard]] ViewController* selectedViewController() const;
    /// Selection by the program: the delegate is not notified. An index beyond the tabs changes nothing.
    void setSelectedIndex(std::size_t index);

    /// The user taps a tab: shows it and notifies the delegate, even if it is shown already.
    void select(std::size_t index);

    /// Hears when other screens stand in the tabs, or when another shows.
    [[nodiscard]] Subscription onTabsChange(std::function<void()> changed) {
        return tabsChanges_.subscribe(std::move(changed));
    }

protected:
    void childrenWillAppear() override;
    void childrenDidAppear() override;
    void childrenWillDisappear() override;

private:
    std::vector<std::shared_ptr<ViewController>> screens_;
    std::size_t selected_ = 0;
    bool showing_ = false;
    Signal<> tabsChanges_;
};

} // namespace tessivo::ui
