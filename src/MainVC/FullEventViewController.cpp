#include "MainVC/FullEventViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/ReminderScheduler.h"
#include "Interface/AlertController.h"
#include "Interface/ViewSnapshots.h"
#include "MainVC/EventActions.h"
#include "Ports/Clock.h"
#include "Support/Sharing/ActivityViewController.h"

namespace tessivo {
namespace {

constexpr ui::Font titleFont{28, ui::FontWeight::Bold};
constexpr ui::Font dateFont{20, ui::FontWeight::Regular};
constexpr ui::Font numberFont{42, ui::FontWeight::Bold};
constexpr ui::Font unitFont{26, ui::FontWeight::Regular};

ui::StyledText twoLines(const std::string& upper, ui::Font upperFont, const std::string& lower,
                        ui::Font lowerFont) {
    return {{{upper + "\n", upperFont, ui::ColorRef::white()}, {lower, lowerFont, ui::ColorRef::white()}}};
}

} // namespace

FullEventViewController::FullEventViewController(SharedServices& services)
    : Screen(services),
      SlideTransitions(services.window().animations),
      currentDate(services.platform().clock.now()),
      event_(services.platform()) {}

void FullEventViewController::viewDidLoad() {
    prevButton.setImageName("chevron.backward");
    prevButton.setTint(ui::ColorRef::white());
    prevButton.setAccessibilityName(localized("Back"));
    prevButton.addTarget(ui::PressEvent::UpInside, [this] { prevButtonTapped(); });
    fillterButton.setImageName("ellipsis\u0421ircle"); // the resource's own name, with a Cyrillic letter
    fillterButton.setTint(ui::ColorRef::white());
    fillterButton.setAccessibilityName(localized("Menu"));
    const auto& table = platform().texts;
    fillterButton.setMenu(
        {{shareElement(table, [this] { share(); }), editMenu(table, [this](EditScreen kind) { edit(kind); }),
          deleteElement(table, [this] { confirmDeletion(); })}});
    fillterButton.setShowsMenuAsPrimaryAction(true);
    timeLabel.setNumberOfLines(2);
    eventInformationLabel.setNumberOfLines(2);
    for (ui::View* part : std::initializer_list<ui::View*>{&eventImage, &timeLabel, &eventInformationLabel,
                                                           &prevButton, &fillterButton})
        view().addSubview(*part);
}

void FullEventViewController::viewWillAppear() {
    const EventBackground background = event_.background(*record);
    eventImage.setContentMode(std::holds_alternative<PhotoBackground>(background)
                                  ? ui::ContentMode::AspectFill
                                  : ui::ContentMode::ScaleToFill);
    showBackground(background, view(), eventImage, view().bounds().size(), services());
    view().setAccessibilityName(event_.title(*record));
    eventInformationLabel.setStyledText(
        twoLines(event_.title(*record), titleFont, event_.dateText(*record), dateFont));
    if (const auto counter = event_.counter(*record, currentDate, unitWords))
        timeLabel.setStyledText(twoLines(counter->number, numberFont, counter->unit, unitFont));
}

void FullEventViewController::slideIn(std::shared_ptr<ui::ViewController> next) {
    next->modalPresentationStyle = ui::PresentationStyle::Custom;
    next->transitioningDelegate = weakSelf<ui::TransitioningDelegate>(this);
    present(std::move(next));
}

void FullEventViewController::edit(EditScreen kind) {
    slideIn(services().screens().makeEdit(kind, record));
}

void FullEventViewController::showButtons(bool shown) {
    prevButton.setHidden(!shown);
    fillterButton.setHidden(!shown);
}

void FullEventViewController::share() {
    showButtons(false);
    platform().snapshots.snapshot(view(), [weak = weak_from_this()](std::shared_ptr<const Bitmap> picture) {
        const auto self = std::static_pointer_cast<FullEventViewController>(weak.lock());
        if (!self)
            return;
        self->showButtons(true);
        if (picture)
            self->present(std::make_shared<ActivityViewController>(
                self->window(), self->platform().texts, self->platform().pictureSharing, std::move(picture)));
    });
}

void FullEventViewController::confirmDeletion() {
    present(deletionQuestion(services(), [this] { deleteEvent(); }));
}

void FullEventViewController::deleteEvent() {
    if (record->id())
        services().coreDataStack().deleteEvent(*record->id());
    services().reminderScheduler().removeReminder(record->id());
    slideIn(services().screens().makeTabShell());
}

} // namespace tessivo
