#pragma once

#include "AddEventVC/DateAndTimeScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"

namespace tessivo {

/// The second step of the wizard: when the event is. Decides whether it lies ahead.
class EventDateAndTimeViewController final : public DateAndTimeScreen {
public:
    explicit EventDateAndTimeViewController(SharedServices& services);

    std::optional<EventItem> eventData;
    EventView eventView;

    [[nodiscard]] std::string screenName() const override { return "EventDateAndTimeViewController"; }

    void nextButtonTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] PreviewView& card() override { return eventView; }
    [[nodiscard]] std::string eventTitle() const override;
};

} // namespace tessivo
