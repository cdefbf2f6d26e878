#pragma once

#include "AddEventVC/Label.h"
#include "AddEventVC/WizardScreen.h"
#include "Extension/PreviewView.h"
#include "Interface/DatePicker.h"
#include "Interface/ScrollView.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Switch.h"
#include "Ports/DateFormatter.h"
#include "SelectValueVC/TableViewController.h"

namespace tessivo {

/// The day, the time, the repeat and the unit of the count, in the wizard and on the edit screen, beside a
/// card that counts anew at each change.
///
/// The texts of the day and the time row are what counts: every comparison reads them back, so that the
/// screen judges exactly what will be stored, without the seconds that only the pickers know.
class DateAndTimeScreen : public WizardScreen, public TableViewControllerDelegate {
public:
    explicit DateAndTimeScreen(SharedServices& services);

    /// The instant of the last comparison.
    Instant currentDate;
    /// Index into the table of repeats. Hiding the row leaves it as it is.
    int repEvent = 0;

    ui::ScrollView scroll{controls, "scroll"};
    ui::View contentView{controls, "contentView"};
    ui::DatePicker datePicker;
    ui::DatePicker timePicker;
    ui::Switch toggleSwitch{controls, "toggleSwitch"};
    ui::SegmentedControl segmentedControl{controls, "segmentedControl"};
    InfoLabel dayLabel{controls, "dayLabel", localized("Day")};
    InfoLabel timeLabel{controls, "timeLabel", localized("Time")};
    InfoLabel repeatInfoLabel{controls, "repeatInfoLabel", localized("Repeat")};
    InfoLabel unitsLabel{controls, "unitsLabel", localized("Units")};
    Label dayField{controls, "dayField", ""};
    Label timeField{controls, "timeField", ""};
    Label repeatLapel{controls, "repeatLapel", localized("Never")};
    Label switcherLabel{controls, "switcherLabel", localized("All Day")};
    ui::Button repeatButton{controls, "repeatButton"};

    virtual void nextButtonTapped() = 0;
    void repeatButtonTapped() { handleViewLiveTap(); }
    void handleViewLiveTap();
    void tapGestureDone();
    void datePickerValueChanged();
    void timePickerValueChanged();
    void segmentValueChanged();
    void switchValueChanged();
    virtual void daylabelTapped();
    virtual void timelabelTapped();
    void didSelectValue(const std::string& title, int index) override;

protected:
    /// Builds the rows of an all-day event of today, and the card under them.
    void buildRows();

    [[nodiscard]] virtual PreviewView& card() = 0;
    /// The title that the card shows.
    [[nodiscard]] virtual std::string eventTitle() const = 0;

    void showEventInformation(const std::string& dateLine);
    /// Lets the switch and the rows of the time say whether the event has a time.
    void showAllDay(bool allDay);
    /// A repeat is offered for a date ahead only.
    void showOrHideRepeatRow(bool past);
    /// What the day and the time row say, the time only where there is one.
    [[nodiscard]] Instant chosenDate() const;
    [[nodiscard]] std::optional<std::string> chosenTime() const;
    /// A text that cannot be parsed stops the program.
    [[nodiscard]] Instant read(const std::string& day, const std::optional<std::string>& time) const;

private:
    void bindRows();
    [[nodiscard]] bool chosenDateIsPast();
    void count();

    std::unique_ptr<DateFormatter> dateFormatter;
    std::unique_ptr<DateFormatter> timeFormatter;
    std::unique_ptr<DateFormatter> eventFormatter;
};

} // namespace tessivo
