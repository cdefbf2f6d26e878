#pragma once

#include "AddEventVC/BackgroundScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"
#include "Ports/DateFormatter.h"

namespace tessivo {

/// The last step of the wizard: the background. Confirming it makes the event.
class EventBackgroundViewController final : public BackgroundScreen {
public:
    explicit EventBackgroundViewController(SharedServices& services);

    std::optional<EventItem> eventData;
    EventView eventView;

    [[nodiscard]] std::string screenName() const override { return "EventBackgroundViewController"; }

    void doneButtonTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] PreviewView& card() override { return eventView; }
    void take(Choice choice) override;

private:
    void showDraft();
    [[nodiscard]] Instant eventDay() const;

    std::unique_ptr<DateFormatter> dateFormatter;
    std::unique_ptr<DateFormatter> eventFormatter;
};

} // namespace tessivo
