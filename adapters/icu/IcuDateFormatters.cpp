#include "icu/IcuDateFormatters.h"

#include "icu/DeviceLocale.h"
#include "icu/IcuRequire.h"

#include <unicode/calendar.h>
#include <unicode/smpdtfmt.h>

#include <utility>

namespace tessivo {
namespace {

/// Formats in the zone, but reads in GMT, where every wall time exists, and only then asks the zone for the
/// moment. A strict calendar in the zone would refuse a day without a midnight.
class IcuDateFormatter final : public DateFormatter {
public:
    IcuDateFormatter(std::string_view pattern, const icu::Locale& locale,
                     std::shared_ptr<const icu::BasicTimeZone> zone)
        : zone_(std::move(zone)) {
        UErrorCode status = U_ZERO_ERROR;
        const auto letters =
            icu::UnicodeString::fromUTF8(icu::StringPiece(pattern.data(), static_cast<int>(pattern.size())));
        format_ = std::make_unique<icu::SimpleDateFormat>(letters, locale, status);
        icu_adapter::require(status, "date formats");
        format_->setLenient(false);
        format_->setTimeZone(*zone_);
        reading_.reset(format_->getCalendar()->clone());
        reading_->setTimeZone(*icu::TimeZone::getGMT());
    }

    std::string string(Instant instant) const override {
        icu::UnicodeString text;
        format_->format(secondsSince1970(instant) * 1000, text);
        std::string result;
        return text.toUTF8String(result);
    }

    std::optional<Instant> date(std::string_view text) const override {
        const auto letters =
            icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int>(text.size())));
        icu::ParsePosition position(0);
        reading_->clear();
        format_->parse(letters, *reading_, position);
        if (position.getErrorIndex() >= 0 || position.getIndex() != letters.length())
            return std::nullopt;
        UErrorCode status = U_ZERO_ERROR;
        const UDate wall = reading_->getTime(status);
        if (U_FAILURE(status))
            return std::nullopt; // a day or an hour that no calendar page has
        return instantAt(momentOfWallTime(*zone_, wall) / 1000);
    }

private:
    std::shared_ptr<const icu::BasicTimeZone> zone_;
    std::unique_ptr<icu::SimpleDateFormat> format_;
    std::unique_ptr<icu::Calendar> reading_;
};

} // namespace

IcuDateFormatters::IcuDateFormatters(std::string locale, const std::string& timeZone)
    : locale_(std::move(locale)), zone_(timeZone) {}

std::unique_ptr<DateFormatter> IcuDateFormatters::make(std::string_view pattern) const {
    const std::string name = locale_.empty() ? deviceLocale(LocalePurpose::Dates) : locale_;
    return std::make_unique<IcuDateFormatter>(pattern, icu::Locale(name.c_str()), zone_.current());
}

} // namespace tessivo
