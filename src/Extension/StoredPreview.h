#pragma once

#include "Extension/PreviewView.h"
#include "Extension/StoredEvent.h"

namespace tessivo {

/// The card of a stored event on the screens that change it.
class StoredPreview final : public PreviewView {
public:
    /// Registers itself as "eventView", its count as `timeLabelName`, and its other parts by their own names.
    StoredPreview(ui::ControlRegistry& registry, std::string timeLabelName, SharedServices& services);

    /// Shows the event as it counts at `now`. What the row lacks stops the program.
    void show(const EventCoreData& row, Instant now);
    /// Shows another title over the event's date.
    void showTitle(const EventCoreData& row, const std::string& title);

private:
    SharedServices& services_;
    const StoredEvent event_;
};

} // namespace tessivo
