#pragma once

#include "Ports/Time.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// Dates as text and back, by one pattern, in the device's language, calendar, digits and time zone as they
/// stood when it was made. One thread at a time.
class DateFormatter {
public:
    virtual ~DateFormatter() = default;

    [[nodiscard]] virtual std::string string(Instant instant) const = 0;

    /// The moment that `text` names, to the letter of the pattern; empty if it cannot be parsed. Fields that
    /// the pattern lacks are the first of their range. A day without a local midnight reads as its first
    /// moment.
    [[nodiscard]] virtual std::optional<Instant> date(std::string_view text) const = 0;
};

/// Makes formatters. Making one is dear (tens of microseconds): make it once per pass or per screen. Any
/// thread.
class DateFormatters {
public:
    virtual ~DateFormatters() = default;

    /// A formatter of `pattern`, in the Unicode date-field letters ("dd MMMM yyyy"). Never null.
    [[nodiscard]] virtual std::unique_ptr<DateFormatter> make(std::string_view pattern) const = 0;

    /// Whether `formatter`, one made here, still reads and writes as one made now would.
    [[nodiscard]] virtual bool isCurrent(const DateFormatter& formatter) const = 0;
};

} // namespace tessivo
