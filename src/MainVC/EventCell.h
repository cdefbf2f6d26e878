#pragma once

#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Ports/DateFormatter.h"
#include "Ports/Uuid.h"
#include "Support/SharedServices.h"
#include "SwipeCells/SwipeCollectionViewCell.h"

namespace tessivo {

class EventCoreData;

/// The card of one event in a list.
///
/// It counts from the moment at which the cell was made, also when it is reused: numbers of a list stand
/// still while it is on the screen, and move when the list is made anew.
class EventCell final : public swipe::SwipeCollectionViewCell,
                        public std::enable_shared_from_this<EventCell> {
public:
    explicit EventCell(SharedServices& services);

    ui::Label timeLabel{controls, "timeLabel"};
    ui::Label eventInformationLabel{controls, "eventInformationLabel"};
    ui::ImageView photoImage{controls, "photoImage"};
    /// The `id` of the event shown.
    std::optional<Uuid> recordID;

    /// Shows `row`. An attribute that a card needs and the row lacks, or a date text that does not read,
    /// stops the program.
    void configure(const EventCoreData& row);

    void prepareForReuse() override;

private:
    void showBackground(const EventCoreData& row);
    void showGradient(int index);
    void showPicture(const EventCoreData& row);
    void showCounter(const EventCoreData& row);
    [[nodiscard]] const std::string& present(const std::optional<std::string>& text, const char* what) const;

    SharedServices& services_;
    const Instant currentDate;
    std::unique_ptr<DateFormatter> eventFormatter;
    std::unique_ptr<DateFormatter> dateFormatter;
};

} // namespace tessivo
