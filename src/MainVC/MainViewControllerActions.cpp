#include "MainVC/MainViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/ReminderScheduler.h"
#include "Interface/AlertController.h"
#include "Interface/ViewSnapshots.h"
#include "MainVC/EventActions.h"
#include "MainVC/EventCell.h"
#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Support/CardSize.h"
#include "Support/Sharing/ActivityViewController.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr double swipeButtonPadding = 8; ///< on each side of a button's picture

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
    return swipe::SwipeActions{makeAction(size ? size->deleteImage : nullptr, image, localized("Delete"),
                                          false, [this](int item) { confirmDeletion(item); }),
                               makeAction(size ? size->shareImage : nullptr, image, localized("Share"), true,
                                          [this](int item) { shareCard(item); }),
                               makeAction(size ? size->editImage : nullptr, image, localized("Edit"), true,
                                          [this](int item) { showEditSheet(item); })};
}

swipe::SwipeOptions MainViewController::editActionsOptions(ui::CollectionView&, int,
                                                           swipe::SwipeActionsOrientation) {
    swipe::SwipeOptions options;
    if (const EventSize* size = savedEventSize(platform()))
        options.maximumButtonWidth = size->swipeButtonWidth;
    return options;
}

void MainViewController::actOn(const std::optional<Uuid>& id, const std::function<void(int)>& act) {
    if (!records)
        return;
    const auto found = std::ranges::find_if(*records, [&](const auto& row) { return row->id() == id; });
    if (found != records->end())
        act(static_cast<int>(found - records->begin()));
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
    const auto sheet = std::make_shared<ui::AlertController>(
        window(), ui::AlertStyle::ActionSheet, localized("Edit"), localized("What do you want to edit?"));
    for (const auto& choice : editChoices)
        sheet->addAction({localized(choice.title), ui::AlertActionStyle::Default,
                          [this, kind = choice.screen, id = rowAt(item).id()] {
                              actOn(id, [&](int at) { edit(kind, at); });
                          }});
    sheet->addAction({localized("Cancel"), ui::AlertActionStyle::Cancel, {}});
    present(sheet);
}

std::optional<ui::Menu> MainViewController::contextMenuForItem(ui::CollectionView&, int item, ui::Point) {
    const auto id = rowAt(item).id();
    const auto& table = platform().texts;
    return ui::Menu{
        {editMenu(table, [this, id](EditScreen kind) { actOn(id, [&](int at) { edit(kind, at); }); }),
         shareElement(table, [this, id] { actOn(id, [this](int at) { shareCard(at); }); }),
         deleteElement(table, [this, id] { actOn(id, [this](int at) { confirmDeletion(at); }); })}};
}

void MainViewController::shareCard(int item) {
    const auto cell = collection.cellForItem(item);
    if (!cell)
        return;
    platform().snapshots.snapshot(*cell, [weak =
                                              std::weak_ptr(self())](std::shared_ptr<const Bitmap> picture) {
        if (const auto list = weak.lock(); list && picture)
            list->present(std::make_shared<ActivityViewController>(
                list->window(), list->platform().texts, list->platform().pictureSharing, std::move(picture)));
    });
}

void MainViewController::confirmDeletion(int item) {
    present(deletionQuestion(
        services(), [this, id = rowAt(item).id()] { actOn(id, [this](int at) { deleteAction(at); }); }));
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
