#include "MainVC/EventCell.h"

#include "AddEventVC/Palette.h"
#include "Event/CounterText.h"
#include "Event/EventCoreData.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Extension/EventCardText.h"
#include "Interface/ViewController.h"
#include "MainVC/CardSize.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Support/EventImages.h"

namespace tessivo {
namespace {

constexpr double cardCornerRadius = 24;

} // namespace

EventCell::EventCell(SharedServices& services)
    : SwipeCollectionViewCell({services.window().animations,
                               services.platform().mainQueue,
                               services.platform().textMeasuring,
                               nullptr,
                               {}}),
      services_(services),
      currentDate(services.platform().clock.now()),
      eventFormatter(services.platform().dateFormatters.make(fullFormat)),
      dateFormatter(services.platform().dateFormatters.make(dateFormat)) {
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
    showBackground(row);
    eventInformationLabel.setStyledText(makeEventCardText(
        present(row.dateEvent(), "date"), present(row.title(), "title"), services_.window().screen));
    showCounter(row);
    if (!row.id())
        services_.platform().console.stopProgram("An event on a card has no id.");
    recordID = row.id();
    setAccessibilityName(*row.title() + ", " + *row.dateEvent() + ", " + timeLabel.text());
}

void EventCell::showBackground(const EventCoreData& row) {
    photoImage.setImage({});
    if (row.color() != NO_VALUE) {
        contentView.setBackgroundColor(
            ui::ColorRef::named(colorItemAt(row.color(), services_.platform().console).color));
    } else if (row.gradient() != NO_VALUE) {
        showGradient(row.gradient());
    } else {
        showPicture(row);
    }
}

void EventCell::showPicture(const EventCoreData& row) {
    const ui::Size size = cardSize(savedEventSize(services_.platform()), services_.window().screen);
    if (row.photoPath()) {
        // A late photo lands on the cell even when that shows another event by then.
        services_.eventImages().loadPhoto(*row.photoPath(), size, [weak = weak_from_this()](ui::Image image) {
            if (const auto cell = weak.lock())
                cell->photoImage.setImage(std::move(image));
        });
        return;
    }
    if (!row.unsplashPath())
        services_.platform().console.stopProgram("An event on a card has no background.");
    photoImage.setImage(services_.eventImages().showUnsplashImage(*row.unsplashPath(), size));
}

void EventCell::showGradient(int index) {
    const auto& platform = services_.platform();
    const auto layer = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*layer, gradientItemAt(index, platform.console), platform.colors, platform.console);
    const ui::Size size = cardSize(savedEventSize(platform), services_.window().screen);
    layer->setFrame({0, 0, size.width, size.height});
    layer->setCornerRadius(cardCornerRadius);
    contentView.insertSublayer(layer, 0);
}

void EventCell::showCounter(const EventCoreData& row) {
    Console& console = services_.platform().console;
    const auto eventDate = eventDateOf(row.dateEvent(), row.timeEvent(), *eventFormatter, *dateFormatter);
    if (!eventDate)
        console.stopProgram("The date of an event on a card does not read.");
    if (const auto counter = counterText(*eventDate, currentDate, row.timeFormat(), unitWords, console))
        timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, services_.window().screen));
}

const std::string& EventCell::present(const std::optional<std::string>& text, const char* what) const {
    if (!text)
        services_.platform().console.stopProgram(std::string("An event on a card has no ") + what + ".");
    return *text;
}

} // namespace tessivo
