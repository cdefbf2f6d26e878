#include "AddEventVC/EditEventBackgroundViewController.h"

#include "AddEventVC/Palette.h"
#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/EventItem.h"
#include "Event/FetchEventDataType.h"
#include "Ports/Console.h"
#include "Support/EventImages.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

EditEventBackgroundViewController::EditEventBackgroundViewController(SharedServices& services)
    : BackgroundScreen(services, "Colors", &PickedMedia::originalImage),
      eventView(controls, "timeLabel", services) {}

void EditEventBackgroundViewController::viewDidLoad() {
    buildFrame(localized("Edit Background"), "steps4", localized("Save"));
    if (eventData->color() != NO_VALUE)
        selectedColorIndexPath = eventData->color();
    if (eventData->gradient() != NO_VALUE)
        selectedGradientIndexPath = eventData->gradient();
    buildRows();
    eventView.show(*eventData, currentDate);
    if (eventView.sublayers().empty())
        addHiddenGradient();
}

void EditEventBackgroundViewController::addHiddenGradient() {
    const auto layer = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*layer, sectionsGradient.front(), platform().colors, platform().console);
    const ui::Size size = PreviewView::sizeOn(screen());
    layer->setFrame({0, 0, size.width, size.height});
    layer->setCornerRadius(eventView.cornerRadius());
    layer->setHidden(true);
    eventView.insertSublayer(layer, 0);
}

void EditEventBackgroundViewController::take(Choice choice) {
    eventData->setPhotoPath(std::move(choice.photoPath));
    eventData->setGradient(choice.gradient);
    eventData->setColor(choice.color);
    eventData->setUnsplashPath(std::move(choice.unsplashPath));
    editBack = 1;
}

void EditEventBackgroundViewController::doneButtonTapped() {
    if (editBack == 1)
        save();
    services().fetchEventDataType().refreshEvents();
    show(services().screens().makeTabShell());
}

void EditEventBackgroundViewController::save() {
    if (eventData->unsplashPath())
        services().eventImages().keepUnsplashImage(unsplashImage, unsplashPath.value_or(""));
    if (!eventData->id())
        platform().console.stopProgram("An event whose background has changed has no id.");
    services().coreDataStack().updateBackground(*eventData->id(), eventData->color(), eventData->gradient(),
                                                eventData->unsplashPath(), eventData->photoPath());
}

} // namespace tessivo
