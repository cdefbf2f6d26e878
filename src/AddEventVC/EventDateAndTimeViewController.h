#pragma once

#include "AddEventVC/Label.h"
#include "AddEventVC/WizardScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"
#include "Interface/DatePicker.h"
#include "Interface/ScrollView.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Switch.h"
#include "SelectValueVC/TableViewController.h"

namespace tessivo {

/// The second step of the wizard: the day, the time, the repeat and the unit of the count.
///
/// The texts of the day and the time row are what counts: every comparison reads them back, so that the
/// screen judges exactly what will be stored, without the seconds that only the pickers know.
class EventDateAndTimeViewController final : public WizardScreen, public TableViewControllerDelegate {
public:
    explicit EventDateAndTimeViewController(SharedServices& services);

    std::optional<EventItem> eventData;
    /// The instant of the last comparison.
    Instant currentDate;
    /// Index into the table of repeats. Hiding the row leaves it as it is.
    int repEvent = 0;

    ui::ScrollView scroll{controls, "scroll"};
    ui::View contentView{controls, "contentView"};
    ui::DatePicker datePicker;
    ui::DatePicker timePicker;
    ui::Switch toggleSwitch{controls, "toggleSwitch"};
    EventView eventView;
    ui::SegmentedControl segmentedControl{controls, "segmentedControl"};
    InfoLabel dayLabel{controls, "dayLabel", "Day"};
    InfoLabel timeLabel{controls, "timeLabel", "Time"};
    InfoLabel repeatInfoLabel{controls, "repeatInfoLabel", "Repeat"};
    InfoLabel unitsLabel{controls, "unitsLabel", "Units"};
    Label dayField{controls, "dayField", ""};
    Label timeField{controls, "timeField", ""};
    Label repeatLapel{controls, "repeatLapel", "Never"};
    Label switcherLabel{controls, "switcherLabel", "All Day"};
    ui::Button repeatButton{controls, "repeatButton"};

    [[nodiscard]] std::string screenName() const override { return "EventDateAndTimeViewController"; }

    void nextButtonTapped();
    void repeatButtonTapped() { handleViewLiveTap(); }
    void handleViewLiveTap();
    void tapGestureDone();
    void datePickerValueChanged();
    void timePickerValueChanged();
    void segmentValueChanged();
    void switchValueChanged();
    void daylabelTapped();
    void timelabelTapped();
    void didSelectValue(const std::string& title, int index) override;

protected:
    void viewDidLoad() override;

private:
    void buildRows();
    void bindRows();
    [[nodiscard]] Instant chosenDate() const;
    [[nodiscard]] Instant read(const std::string& day, const std::optional<std::string>& time) const;
    [[nodiscard]] bool chosenDateIsPast();
    void showOrHideRepeatRow(bool past);
    void count();
    void showEventInformation(const std::string& dateLine);

    std::unique_ptr<DateFormatter> dateFormatter;
    std::unique_ptr<DateFormatter> timeFormatter;
    std::unique_ptr<DateFormatter> eventFormatter;
};

} // namespace tessivo
