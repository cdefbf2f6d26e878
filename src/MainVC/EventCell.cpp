#include "MainVC/EventCell.h"

#include "Event/EventCoreData.h"
#include "Extension/EventCardText.h"
#include "Interface/ViewController.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Support/CardSize.h"

namespace tessivo {
namespace {

constexpr double cardCornerRadius = 24;

} // namespace

EventCell::EventCell(SharedServices& services)
    : SwipeCollectionViewCell(
          {services.window().animations, services.platform().mainQueue, services.platform().textMeasuring,
           nullptr, [&screen = services.window().screen] { return screen.preferences().screenReader; }}),
      services_(services),
      currentDate(services.platform().clock.now()),
      event_(services.platform()) {
    setCornerRadius(cardCornerRadius);
    contentView.setCornerRadius(cardCornerRadius);
    photoImage.setCornerRadius(cardCornerRadius);
    photoImage.setClipsToBounds(true);
    photoImage.setContentMode(ui::ContentMode::AspectFill);
    timeLabel.setNumberOfLines(2);
    timeLabel.setAlignment(ui::TextAlignment::Right);
    eventInformationLabel.setNumberOfLines(2);
    contentView.addSubview(photoImage);
    contentView.addSubview(timeLabel);
    contentView.addSubview(eventInformationLabel);
}

void EventCell::prepareForReuse() {
    SwipeCollectionViewCell::prepareForReuse();
    if (!contentView.sublayers().empty())
        contentView.removeSublayer(0);
}

void EventCell::configure(const EventCoreData& row) {
    const auto& screen = services_.window().screen;
    const ui::Size size = cardSize(savedEventSize(services_.platform()), screen);
    showBackground(event_.background(row), contentView, photoImage, size, services_);
    eventInformationLabel.setStyledText(makeEventCardText(event_.dateText(row), event_.title(row), screen));
    if (const auto counter = event_.counter(row, currentDate, unitWords))
        timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen));
    if (!row.id())
        services_.platform().console.stopProgram("An event on a card has no id.");
    recordID = row.id();
    setAccessibilityName(*row.title() + ", " + *row.dateEvent() + ", " + timeLabel.text());
}

} // namespace tessivo
