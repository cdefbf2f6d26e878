#pragma once

#include "AddEventVC/DateAndTimeScreen.h"
#include "Extension/StoredPreview.h"

namespace tessivo {

class EventCoreData;

/// Changes the day, the time, the repeat and the unit of a stored event.
///
/// The card opens with the words of a stored event ("Week") and goes on with those of the segments ("Weeks")
/// at the first change.
class EditEventDateAndTimeViewController final : public DateAndTimeScreen {
public:
    explicit EditEventDateAndTimeViewController(SharedServices& services);

    /// Set by the opener. Save writes into it first, and then through the shared stack.
    std::shared_ptr<EventCoreData> eventData;
    StoredPreview eventView;

    [[nodiscard]] std::string screenName() const override { return "EditEventDateAndTimeViewController"; }

    /// Saves, decides anew whether the event lies ahead, makes a pending notification anew, and shows the
    /// lists anew. Nothing of that for an event without `id`.
    void nextButtonTapped() override;
    void daylabelTapped() override;
    void timelabelTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] PreviewView& card() override { return eventView; }
    [[nodiscard]] std::string eventTitle() const override;

private:
    void fillRows();
};

} // namespace tessivo
