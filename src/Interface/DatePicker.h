#pragma once

#include "Interface/View.h"
#include "Ports/Calendar.h"
#include "Ports/DateFormatter.h"

#include <array>

namespace tessivo::ui {

enum class DatePickerMode { Date, Time };

/// Wheels for a day or for a time of day, in the device's calendar, language and digits.
///
/// In date mode the wheels are day, month and year; in time mode hour (of twelve), minute and half of the
/// day. Turning one wheel leaves the others where they are, but for a day that the new month lacks, which
/// becomes the month's last.
class DatePicker final : public View {
public:
    struct Wheel {
        std::vector<std::string> rows;
        int selected = 0;
        bool wraps = false; ///< the last row is followed by the first
    };

    /// The ports outlive the picker. It stands at `start`.
    DatePicker(ControlRegistry& registry, std::string name, DatePickerMode mode, const Calendar& calendar,
               const DateFormatters& formatters, Instant start);

    [[nodiscard]] DatePickerMode mode() const { return mode_; }
    [[nodiscard]] Instant date() const { return date_; }
    /// The program's own change: calls no target.
    void setDate(Instant date);

    [[nodiscard]] std::size_t wheelCount() const { return 3; }
    [[nodiscard]] Wheel wheel(std::size_t index) const;

    /// What assistive technology calls each wheel; empty until it is set.
    [[nodiscard]] const std::string& wheelName(std::size_t wheel) const { return wheelNames_.at(wheel); }
    void setWheelNames(std::array<std::string, 3> names) { wheelNames_ = std::move(names); }

    /// The user turns a wheel to a row: the date follows and the value-changed targets are called. Rows or
    /// wheels that do not exist, and the row where it stands, change nothing.
    void turn(std::size_t wheel, int row);
    /// The user picks a moment in one go: as turning all wheels there.
    void pick(Instant date);

    void addValueChangedTarget(std::function<void()> target) { targets_.add(std::move(target)); }

private:
    [[nodiscard]] Wheel dayWheel() const;
    [[nodiscard]] Wheel monthWheel() const;
    [[nodiscard]] Wheel yearWheel() const;
    [[nodiscard]] Wheel hourWheel() const;
    [[nodiscard]] Wheel minuteWheel() const;
    [[nodiscard]] Wheel halfDayWheel() const;
    [[nodiscard]] int lastDayOf(int year, int month) const;
    [[nodiscard]] int lastMonthOf(int year) const;

    DatePickerMode mode_;
    const Calendar& calendar_;
    const DateFormatters& formatters_;
    Instant date_;
    std::array<std::string, 3> wheelNames_;
    Signal<> targets_;
};

} // namespace tessivo::ui
