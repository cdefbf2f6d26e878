#pragma once

#include "AddEventVC/BackgroundScreen.h"
#include "Extension/StoredPreview.h"

namespace tessivo {

class EventCoreData;

/// Changes the background of a stored event. Each choice goes into the event in memory at once, and stays
/// there when the screen is left without Save.
class EditEventBackgroundViewController final : public BackgroundScreen {
public:
    explicit EditEventBackgroundViewController(SharedServices& services);

    /// Set by the opener.
    std::shared_ptr<EventCoreData> eventData;
    /// 1 as soon as a background was chosen: without that there is nothing to save.
    int editBack = 0;
    StoredPreview eventView;

    [[nodiscard]] std::string screenName() const override { return "EditEventBackgroundViewController"; }

    /// Saves a choice, and shows the lists anew. A choice for an event without `id` stops the program.
    void doneButtonTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] PreviewView& card() override { return eventView; }
    void take(Choice choice) override;

private:
    /// The layer that later choices of a gradient show and change.
    void addHiddenGradient();
    void save();
};

} // namespace tessivo
