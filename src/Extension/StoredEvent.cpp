#include "Extension/StoredEvent.h"

#include "Event/EventCoreData.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Interface/ImageView.h"
#include "Ports/Console.h"
#include "Support/EventImages.h"
#include "Support/SharedServices.h"

namespace tessivo {

StoredEvent::StoredEvent(const Platform& platform)
    : console_(platform.console),
      texts_(platform.texts),
      eventFormatter(platform.dateFormatters.make(fullFormat)),
      dateFormatter(platform.dateFormatters.make(dateFormat)) {}

const std::string& StoredEvent::title(const EventCoreData& row) const {
    return present(row.title(), "title");
}

const std::string& StoredEvent::dateText(const EventCoreData& row) const {
    return present(row.dateEvent(), "date");
}

Instant StoredEvent::date(const EventCoreData& row) const {
    if (const auto date = eventDateOf(row.dateEvent(), row.timeEvent(), *eventFormatter, *dateFormatter))
        return *date;
    console_.stopProgram("The date of an event cannot be parsed.");
}

std::optional<CounterText> StoredEvent::counter(const EventCoreData& row, Instant now,
                                                const UnitWords& words) const {
    return counterText(date(row), now, row.timeFormat(), words, texts_, console_);
}

EventBackground StoredEvent::background(const EventCoreData& row) const {
    if (row.color() != NO_VALUE)
        return colorItemAt(row.color(), console_);
    if (row.gradient() != NO_VALUE)
        return gradientItemAt(row.gradient(), console_);
    if (row.photoPath())
        return PhotoBackground{*row.photoPath()};
    return UnsplashBackground{present(row.unsplashPath(), "background")};
}

const std::string& StoredEvent::present(const std::optional<std::string>& text, const char* what) const {
    if (!text)
        console_.stopProgram(std::string("An event has no ") + what + ".");
    return *text;
}

void showBackground(const EventBackground& background, ui::View& view, ui::ImageView& image, ui::Size size,
                    SharedServices& services) {
    const Platform& platform = services.platform();
    image.setImage({});
    if (const auto* color = std::get_if<ColorItem>(&background)) {
        view.setBackgroundColor(ui::ColorRef::named(color->color));
    } else if (const auto* gradient = std::get_if<GradientItem>(&background)) {
        const auto layer = std::make_shared<ui::GradientLayer>();
        applyGradientItem(*layer, *gradient, platform.colors, platform.console);
        layer->setFrame({0, 0, size.width, size.height});
        layer->setCornerRadius(view.cornerRadius());
        view.insertSublayer(layer, 0);
    } else if (const auto* photo = std::get_if<PhotoBackground>(&background)) {
        services.eventImages().loadPhoto(photo->photoPath, size,
                                         [&image, alive = image.lifetime()](ui::Image loaded) {
                                             if (!alive.expired() && loaded.isSet())
                                                 image.setImage(std::move(loaded));
                                         });
    } else {
        const auto& kept = std::get<UnsplashBackground>(background);
        image.setImage(services.eventImages().showUnsplashImage(kept.unsplashPath, size));
    }
}

} // namespace tessivo
