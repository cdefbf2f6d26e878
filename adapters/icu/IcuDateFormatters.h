#pragma once

#include "Ports/DateFormatter.h"
#include "icu/DeviceZone.h"

#include <memory>
#include <string>

namespace tessivo {

/// Date texts by ICU, in the locale's own calendar, digits and month names. Parses only whole texts in the
/// pattern's form; the calendar supplies a year or day that the pattern lacks.
class IcuDateFormatters final : public DateFormatters {
public:
    /// The device's locale and time zone, looked at anew for each formatter.
    IcuDateFormatters();

    /// A fixed locale ("fa_IR") and time zone ("Asia/Tehran").
    IcuDateFormatters(std::string locale, const std::string& timeZone);
    ~IcuDateFormatters() override;

    std::unique_ptr<DateFormatter> make(std::string_view pattern) const override;
    bool isCurrent(const DateFormatter& formatter) const override;

private:
    class Formats;

    [[nodiscard]] std::string localeNow() const;

    std::string locale_; ///< empty: the device's
    DeviceZone zone_;
    std::unique_ptr<Formats> formats_;
};

} // namespace tessivo
