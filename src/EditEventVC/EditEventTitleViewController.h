#pragma once

#include "AddEventVC/TitleScreen.h"
#include "Extension/StoredPreview.h"

namespace tessivo {

class EventCoreData;

/// Changes the title of a stored event.
class EditEventTitleViewController final : public TitleScreen {
public:
    explicit EditEventTitleViewController(SharedServices& services);

    /// Set by the opener. Save writes into it first, and then through the shared stack.
    std::shared_ptr<EventCoreData> eventData;
    StoredPreview eventView;
    const Instant currentDate;

    [[nodiscard]] std::string screenName() const override { return "EditEventTitleViewController"; }

    /// Saves, gives a pending notification the new title, and shows the lists anew. An event without `id`
    /// keeps the title in memory only, and the screen stays.
    void nextButtonTapped() override;

protected:
    void viewDidLoad() override;
    void showTitle(const std::string& title) override { eventView.showTitle(*eventData, title); }
};

} // namespace tessivo
