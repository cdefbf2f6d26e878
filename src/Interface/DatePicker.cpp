#include "Interface/DatePicker.h"

#include <algorithm>

namespace tessivo::ui {
namespace {

/// Years that the year wheel offers on either side of the one where it stands.
constexpr int yearsEachSide = 100;

constexpr int hoursOfHalfDay = 12;

} // namespace

DatePicker::DatePicker(ControlRegistry& registry, std::string name, DatePickerMode mode,
                       const Calendar& calendar, const DateFormatters& formatters, Instant start)
    : View(registry, std::move(name)),
      mode_(mode),
      calendar_(calendar),
      formatters_(formatters),
      date_(start) {}

void DatePicker::setDate(Instant date) {
    date_ = date;
    notify(ViewChange::Content);
}

DatePicker::Wheel DatePicker::wheel(std::size_t index) const {
    if (mode_ == DatePickerMode::Date)
        return index == 0 ? dayWheel() : index == 1 ? monthWheel() : yearWheel();
    return index == 0 ? hourWheel() : index == 1 ? minuteWheel() : halfDayWheel();
}

void DatePicker::turn(std::size_t wheelIndex, int row) {
    if (wheelIndex >= wheelCount() || !takesActs())
        return;
    const auto turned = wheel(wheelIndex);
    if (row == turned.selected || row < 0 || static_cast<std::size_t>(row) >= turned.rows.size())
        return;
    DateComponents fields = calendar_.components(date_);
    if (mode_ == DatePickerMode::Date) {
        if (wheelIndex == 0)
            fields.day = row + 1;
        else if (wheelIndex == 1)
            fields.month = row + 1;
        else
            *fields.year += row - turned.selected;
        fields.month = std::min(*fields.month, lastMonthOf(*fields.year));
        fields.day = std::min(*fields.day, lastDayOf(*fields.year, *fields.month));
    } else if (wheelIndex == 0) {
        *fields.hour += row - turned.selected;
    } else if (wheelIndex == 1) {
        fields.minute = row;
    } else {
        *fields.hour += (row - turned.selected) * hoursOfHalfDay;
    }
    pick(calendar_.date(fields));
}

void DatePicker::pick(Instant date) {
    if (!takesActs())
        return;
    setDate(date);
    targets_.emit();
}

DatePicker::Wheel DatePicker::dayWheel() const {
    const DateComponents now = calendar_.components(date_);
    const auto formatter = formatters_.make("d");
    Wheel wheel{{}, *now.day - 1, true};
    for (int day = 1; day <= lastDayOf(*now.year, *now.month); ++day)
        wheel.rows.push_back(formatter->string(calendar_.date({now.year, now.month, day, 12, {}, {}})));
    return wheel;
}

DatePicker::Wheel DatePicker::monthWheel() const {
    const DateComponents now = calendar_.components(date_);
    const auto formatter = formatters_.make("LLLL");
    Wheel wheel{{}, *now.month - 1, true};
    for (int month = 1; month <= lastMonthOf(*now.year); ++month)
        wheel.rows.push_back(formatter->string(calendar_.date({now.year, month, 1, 12, {}, {}})));
    return wheel;
}

DatePicker::Wheel DatePicker::yearWheel() const {
    const int now = *calendar_.components(date_).year;
    const int first = std::max(now - yearsEachSide, 1);
    const auto formatter = formatters_.make("y");
    Wheel wheel{{}, now - first, false};
    for (int year = first; year <= now + yearsEachSide; ++year)
        wheel.rows.push_back(formatter->string(calendar_.date({year, 6, 1, 12, {}, {}})));
    return wheel;
}

DatePicker::Wheel DatePicker::hourWheel() const {
    const DateComponents now = calendar_.components(date_);
    const auto formatter = formatters_.make("h");
    Wheel wheel{{}, *now.hour % hoursOfHalfDay, true};
    for (int hour = 0; hour < hoursOfHalfDay; ++hour)
        wheel.rows.push_back(formatter->string(calendar_.date({now.year, now.month, now.day, hour, {}, {}})));
    return wheel;
}

DatePicker::Wheel DatePicker::minuteWheel() const {
    const DateComponents now = calendar_.components(date_);
    const auto formatter = formatters_.make("mm");
    Wheel wheel{{}, *now.minute, true};
    for (int minute = 0; minute < 60; ++minute)
        wheel.rows.push_back(
            formatter->string(calendar_.date({now.year, now.month, now.day, 12, minute, {}})));
    return wheel;
}

DatePicker::Wheel DatePicker::halfDayWheel() const {
    const DateComponents now = calendar_.components(date_);
    const auto formatter = formatters_.make("a");
    const auto name = [&](int hour) {
        return formatter->string(calendar_.date({now.year, now.month, now.day, hour, {}, {}}));
    };
    return {{name(9), name(21)}, *now.hour / hoursOfHalfDay, false};
}

int DatePicker::lastDayOf(int year, int month) const {
    const Instant first = calendar_.date({year, month, 1, 12, {}, {}});
    const Instant next = calendar_.adding(CalendarUnit::Month, 1, first);
    return *calendar_.components(calendar_.adding(CalendarUnit::Day, -1, next)).day;
}

int DatePicker::lastMonthOf(int year) const {
    const Instant nextYear = calendar_.date({year + 1, 1, 1, 12, {}, {}});
    return *calendar_.components(calendar_.adding(CalendarUnit::Day, -1, nextYear)).month;
}

} // namespace tessivo::ui
