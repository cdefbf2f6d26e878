#pragma once

#include "Ports/Calendar.h"
#include "icu/DeviceZone.h"

#include <unicode/calendar.h>

#include <memory>
#include <mutex>
#include <string>

namespace tessivo {

/// The calendar of a locale (Gregorian, Buddhist, Persian, ...) by ICU.
class IcuCalendar final : public Calendar {
public:
    /// The device's locale as it stands now, and its time zone as it stands at each use.
    IcuCalendar();

    /// A fixed locale ("th_TH"), and the device's time zone as it stands at each use.
    explicit IcuCalendar(const std::string& locale);

    /// A fixed locale ("th_TH") and time zone ("Asia/Bangkok").
    IcuCalendar(const std::string& locale, const std::string& timeZone);

    Instant adding(CalendarUnit unit, int value, Instant instant) const override;
    DateComponents components(Instant instant) const override;
    Instant date(const DateComponents& components) const override;

private:
    void makeCalendar(const std::string& locale);

    /// The calendar, moved to the zone of the moment; the caller holds the lock.
    [[nodiscard]] icu::Calendar& calendarNow() const;

    DeviceZone zone_;
    mutable std::mutex mutex_; ///< guards the two below
    mutable std::shared_ptr<const icu::BasicTimeZone> calendarZone_;
    std::unique_ptr<icu::Calendar> calendar_;
};

} // namespace tessivo
