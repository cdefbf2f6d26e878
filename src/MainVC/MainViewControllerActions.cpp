#include "MainVC/MainViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/ReminderScheduler.h"
#include "Interface/ActivityViewController.h"
#include "Interface/AlertController.h"
#include "Interface/ViewSnapshots.h"
#include "MainVC/CardSize.h"
#include "MainVC/EventCell.h"
#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Support/LocalizationVariables.h"

#include <algorithm>
#include <array>

namespace tessivo {
namespace {

// The line separator breaks the title without ending its paragraph.
constexpr auto deletionTitle = "Are You Sure You Want\u2028 to Delete This Event?";

constexpr double swipeButtonPadding = 8; ///< on each side of a button's picture

struct EditChoice {
    EditScreen screen;
    const char* title;
    const char* symbol;
};

constexpr std::array editChoices{
    EditChoice{EditScreen::Title, "Edit Title", "textformat"},
    EditChoice{EditScreen::DateAndTime, "Edit Day & Time", "calendar"},
    EditChoice{EditScreen::Reminder, "Edit Reminder", "bell.badge"},
    EditChoice{EditScreen::Background, "Edit Background", "photo"},
};

std::shared_ptr<swipe::SwipeAction> makeAction(const char* image, double side, std::string label, bool hides,
                                               std::function<void(int)> act) {
    auto action = std::make_shared<swipe::SwipeAction>(
        swipe::SwipeActionStyle::Default, std::nullopt,
        [act = std::move(act)](swipe::SwipeAction&, int item) { act(item); });
    action->backgroundColor = ui::ColorRef::named("mainBack");
    action->accessibilityLabel = std::move(label);
    action->hidesWhenSelected = hides;
    if (image)
        action->image = swipe::ActionImage{ui::Image::named(image), {side, side}};
    return action;
}

} // namespace

std::optional<swipe::SwipeActions> MainViewController::editActions(ui::CollectionView&, int,
                                                                   swipe::SwipeActionsOrientation side) {
    if (side == swipe::SwipeActionsOrientation::Left)
        return std::nullopt;
    const EventSize* size = savedEventSize(platform());
    const double image = size ? size->swipeButtonWidth - 2 * swipeButtonPadding : 0;
    return swipe::SwipeActions{makeAction(size ? size->deleteImage : nullptr, image, "Delete", false,
                                          [this](int item) { confirmDeletion(item); }),
                               makeAction(size ? size->shareImage : nullptr, image, "Share", true,
                                          [this](int item) { shareCard(item); }),
                               makeAction(size ? size->editImage : nullptr, image, "Edit", true,
                                          [this](int item) { showEditSheet(item); })};
}

swipe::SwipeOptions MainViewController::editActionsOptions(ui::CollectionView&, int,
                                                           swipe::SwipeActionsOrientation) {
    swipe::SwipeOptions options;
    if (const EventSize* size = savedEventSize(platform()))
        options.maximumButtonWidth = size->swipeButtonWidth;
    return options;
}

std::function<void()> MainViewController::laterOnEvent(int item, std::function<void(int)> act) {
    return [this, id = rowAt(item).id(), act = std::move(act)] {
        if (!records)
            return;
        const auto found = std::ranges::find_if(*records, [&](const auto& row) { return row->id() == id; });
        if (found != records->end())
            act(static_cast<int>(found - records->begin()));
    };
}

std::shared_ptr<EventCoreData> MainViewController::freshRowAt(int item) {
    const auto id = rowAt(item).id();
    if (!id)
        platform().console.stopProgram("An event of the list has no id.");
    return services().makeCoreDataStack()->fetchEvent(*id);
}

void MainViewController::edit(EditScreen kind, int item) {
    // The menu of an open card leaves its row open.
    if (const auto cell = std::static_pointer_cast<EventCell>(collection.cellForItem(item)))
        cell->hideSwipe(true);
    slideIn(services().screens().makeEdit(kind, freshRowAt(item)));
}

void MainViewController::showEditSheet(int item) {
    const auto sheet = std::make_shared<ui::AlertController>(window(), ui::AlertStyle::ActionSheet, "Edit",
                                                             "What do you want to edit?");
    for (const auto& choice : editChoices)
        sheet->addAction({choice.title, ui::AlertActionStyle::Default,
                          laterOnEvent(item, [this, kind = choice.screen](int at) { edit(kind, at); })});
    sheet->addAction({"Cancel", ui::AlertActionStyle::Cancel, {}});
    present(sheet);
}

std::optional<ui::Menu> MainViewController::contextMenuForItem(ui::CollectionView&, int item, ui::Point) {
    ui::MenuElement edits{"Edit", "pencil", {}, {}};
    for (const auto& choice : editChoices)
        edits.children.push_back(
            {choice.title,
             choice.symbol,
             laterOnEvent(item, [this, kind = choice.screen](int at) { edit(kind, at); }),
             {}});
    const auto share = laterOnEvent(item, [this](int at) { shareCard(at); });
    const auto remove = laterOnEvent(item, [this](int at) { confirmDeletion(at); });
    return ui::Menu{
        {std::move(edits), {"Share", "square.and.arrow.up", share, {}}, {"Delete", "trash", remove, {}}}};
}

void MainViewController::shareCard(int item) {
    const auto cell = collection.cellForItem(item);
    if (!cell)
        return;
    platform().snapshots.snapshot(
        *cell, [weak = std::weak_ptr(self())](std::shared_ptr<const Bitmap> picture) {
            if (const auto list = weak.lock(); list && picture)
                list->present(std::make_shared<ui::ActivityViewController>(
                    list->window(), list->platform().pictureSharing, std::move(picture)));
        });
}

void MainViewController::confirmDeletion(int item) {
    const auto sheet =
        std::make_shared<ui::AlertController>(window(), ui::AlertStyle::ActionSheet, deletionTitle, "");
    // The look of danger stands on the answer that keeps the event.
    sheet->addAction({texts().alertNo, ui::AlertActionStyle::Destructive, {}});
    sheet->addAction({texts().alertYes, ui::AlertActionStyle::Default,
                      laterOnEvent(item, [this](int at) { deleteAction(at); })});
    present(sheet);
}

void MainViewController::deleteAction(int item) {
    --numberOfObjectsInSection;
    const auto id = rowAt(item).id();
    services().reminderScheduler().removeReminder(id);
    if (id)
        services().coreDataStack().deleteEvent(*id);
    platform().mainQueue.post([weak = std::weak_ptr(self())] {
        if (const auto list = weak.lock())
            list->collection.reloadData();
    });
}

} // namespace tessivo
