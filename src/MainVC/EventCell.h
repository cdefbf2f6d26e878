#pragma once

#include "Extension/StoredEvent.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Ports/Time.h"
#include "Ports/Uuid.h"
#include "Support/SharedServices.h"
#include "SwipeCells/SwipeCollectionViewCell.h"

namespace tessivo {

class EventCoreData;

/// The card of one event in a list.
///
/// It counts from the moment at which the cell was made, also when it is reused: numbers of a list stand
/// still while it is on the screen, and move when the list is made anew.
class EventCell final : public swipe::SwipeCollectionViewCell {
public:
    explicit EventCell(SharedServices& services);

    ui::Label timeLabel{controls, "timeLabel"};
    ui::Label eventInformationLabel{controls, "eventInformationLabel"};
    ui::ImageView photoImage{controls, "photoImage"};
    /// The `id` of the event shown.
    std::optional<Uuid> recordID;

    /// Shows `row`. An attribute that a card needs and the row lacks, or a date that cannot be parsed, stops
    /// the program.
    void configure(const EventCoreData& row);

    void prepareForReuse() override;

private:
    SharedServices& services_;
    const Instant currentDate;
    const StoredEvent event_;
};

} // namespace tessivo
