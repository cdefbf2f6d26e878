#include "Extension/StoredPreview.h"

#include "Event/EventCoreData.h"
#include "Extension/EventCardText.h"
#include "Interface/ViewController.h"
#include "Support/SharedServices.h"

namespace tessivo {

StoredPreview::StoredPreview(ui::ControlRegistry& registry, std::string timeLabelName,
                             SharedServices& services)
    : PreviewView(registry, {"eventView", std::move(timeLabelName), "eventInformationLabel", "photoView"}),
      services_(services),
      event_(services.platform()) {
    photoView.setContentMode(ui::ContentMode::AspectFill);
}

void StoredPreview::show(const EventCoreData& row, Instant now) {
    const auto& screen = services_.window().screen;
    showBackground(event_.background(row), *this, photoView, sizeOn(screen), services_);
    showTitle(row, event_.title(row));
    if (const auto counter = event_.counter(row, now, editPreviewUnitWords))
        timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen));
}

void StoredPreview::showTitle(const EventCoreData& row, const std::string& title) {
    eventInformationLabel.setStyledText(
        makeEventCardText(event_.dateText(row), title, services_.window().screen));
}

} // namespace tessivo
