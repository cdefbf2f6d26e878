#pragma once

#include "Event/EventContext.h"
#include "Extension/SlideTransitions.h"
#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/Label.h"
#include "Interface/TabBarController.h"
#include "SettingVC/SettingControllerDelegate.h"
#include "Support/Screen.h"
#include "Support/ScreenFactory.h"
#include "SwipeCells/SwipeCollectionViewCell.h"

#include <functional>

namespace tessivo {

class CoreDataStack;

enum class ListType { Past = 1, Future = 2 };

/// One list of events, as cards in one column.
///
/// A minute tick keeps it true. Each appearance starts one more, and none is ever stopped: a list that is
/// covered goes on rolling its events, and stays alive for it.
class MainViewController final : public Screen,
                                 public SlideTransitions,
                                 public ui::CollectionViewDataSource,
                                 public ui::CollectionViewDelegate,
                                 public swipe::SwipeCollectionViewCellDelegate,
                                 public ui::TabBarControllerDelegate,
                                 public SettingControllerDelegate {
public:
    MainViewController(SharedServices& services, ListType type);
    ~MainViewController() override;

    const ListType type;
    /// The rows shown, in card order.
    std::optional<EventRows> records;
    int numberOfObjectsInSection = 0;

    ui::CollectionView collection;
    ui::Label titleLabel{controls, "titleLabel"};
    ui::Button settingButton{controls, "settingButton"};
    /// Shows while the list is empty.
    /// Under the empty-state text: what this list is for, or that the other one has events.
    ui::Label hintLabel{controls, "hintLabel"};
    ui::Label mainlabel{controls, "mainlabel"};

    [[nodiscard]] std::string screenName() const override { return "MainViewController"; }

    void settingButtonTapped();
    /// Brings the event's card into view; one that the list does not hold changes nothing.
    void scrollToEvent(const Uuid& id);

    [[nodiscard]] int numberOfItems(ui::CollectionView& collectionView) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collectionView,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collectionView, int item) override;
    void didSelectItem(ui::CollectionView& collectionView, int item) override;
    [[nodiscard]] std::optional<ui::Menu> contextMenuForItem(ui::CollectionView& collectionView, int item,
                                                             ui::Point point) override;
    [[nodiscard]] std::optional<swipe::SwipeActions>
    editActions(ui::CollectionView& collectionView, int item, swipe::SwipeActionsOrientation side) override;
    [[nodiscard]] swipe::SwipeOptions editActionsOptions(ui::CollectionView& collectionView, int item,
                                                         swipe::SwipeActionsOrientation side) override;
    void didSelectViewController(ui::TabBarController& tabs, ui::ViewController& selected) override;
    void reloadEvents() override { collection.reloadData(); }

    // What can be done with a card. An item without a row stops the program.
    void showEditSheet(int item);
    void shareCard(int item);
    void confirmDeletion(int item);
    /// Removes the event of that item with its pending notification; the list follows in a later turn.
    void deleteAction(int item);

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void screenSizeDidChange() override;

private:
    /// By the screen's size; says whether they have changed.
    bool setFonts();
    void scheduleTick();
    void timerFired();
    void refreshAndReload();
    void edit(EditScreen kind, int item);
    [[nodiscard]] EventCoreData& rowAt(int item);
    /// Acts on the place that the event of `id` has in the list by now, and not at all once it has left the
    /// list: rows move under an open question or menu.
    void actOn(const std::optional<Uuid>& id, const std::function<void(int)>& act);
    /// The row once more, from a stack of its own: what the next screen changes and does not save must not
    /// show in the list, nor be saved with the next write.
    [[nodiscard]] std::shared_ptr<EventCoreData> freshRowAt(int item);
    void slideIn(std::shared_ptr<ui::ViewController> next);
    [[nodiscard]] std::shared_ptr<MainViewController> self();

    std::unique_ptr<CoreDataStack> coreDataManager;
};

} // namespace tessivo
