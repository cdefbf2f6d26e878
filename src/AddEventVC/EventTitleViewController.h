#pragma once

#include "AddEventVC/TitleScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"

namespace tessivo {

/// The first step of the wizard: the title.
class EventTitleViewController final : public TitleScreen {
public:
    explicit EventTitleViewController(SharedServices& services);

    EventView eventView;
    EventItem eventData;

    [[nodiscard]] std::string screenName() const override { return "EventTitleViewController"; }

    void nextButtonTapped() override;

protected:
    void viewDidLoad() override;
    void showTitle(const std::string& title) override;

private:
    const std::string dateText;
    const std::string titleText;
};

} // namespace tessivo
