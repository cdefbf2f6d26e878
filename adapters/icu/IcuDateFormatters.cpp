#include "icu/IcuDateFormatters.h"

#include "icu/DeviceLocale.h"
#include "icu/IcuRequire.h"

#include <unicode/calendar.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <mutex>
#include <utility>

namespace tessivo {
namespace {

/// Formats in the zone, but reads in GMT, where every wall time exists, and only then asks the zone for the
/// moment. A strict calendar in the zone would refuse a day without a midnight.
class IcuFormat final {
public:
    IcuFormat(std::string_view pattern, const std::string& locale,
              std::shared_ptr<const icu::BasicTimeZone> zone)
        : locale_(locale), zone_(std::move(zone)) {
        UErrorCode status = U_ZERO_ERROR;
        const auto letters =
            icu::UnicodeString::fromUTF8(icu::StringPiece(pattern.data(), static_cast<int>(pattern.size())));
        format_ = std::make_unique<icu::SimpleDateFormat>(letters, icu::Locale(locale.c_str()), status);
        icu_adapter::require(status, "date formats");
        format_->setLenient(false);
        format_->setTimeZone(*zone_);
        reading_.reset(format_->getCalendar()->clone());
        reading_->setTimeZone(*icu::TimeZone::getGMT());
    }

    [[nodiscard]] const std::string& locale() const { return locale_; }
    [[nodiscard]] const icu::BasicTimeZone& zone() const { return *zone_; }

    std::string string(Instant instant) {
        const std::scoped_lock lock(mutex_);
        icu::UnicodeString text;
        format_->format(secondsSince1970(instant) * 1000, text);
        std::string result;
        return text.toUTF8String(result);
    }

    std::optional<Instant> date(std::string_view text) {
        const std::scoped_lock lock(mutex_);
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
    const std::string locale_;
    std::shared_ptr<const icu::BasicTimeZone> zone_;
    std::unique_ptr<icu::SimpleDateFormat> format_;
    std::unique_ptr<icu::Calendar> reading_;
    std::mutex mutex_;
};

class IcuDateFormatter final : public DateFormatter {
public:
    explicit IcuDateFormatter(std::shared_ptr<IcuFormat> format) : format_(std::move(format)) {}

    [[nodiscard]] const IcuFormat& format() const { return *format_; }

    std::string string(Instant instant) const override { return format_->string(instant); }
    std::optional<Instant> date(std::string_view text) const override { return format_->date(text); }

private:
    const std::shared_ptr<IcuFormat> format_;
};

} // namespace

/// The formats that are in use. One takes about 30 kB once it has read a text, and screens that stay below
/// others keep theirs: whoever wants the same one shares it.
class IcuDateFormatters::Formats final {
public:
    std::shared_ptr<IcuFormat> format(const std::string& locale, std::string_view pattern,
                                      const std::shared_ptr<const icu::BasicTimeZone>& zone) {
        const std::scoped_lock lock(mutex_);
        auto& known = formats_[{locale, std::string(pattern)}];
        auto format = known.lock();
        if (!format || &format->zone() != zone.get()) {
            format = std::make_shared<IcuFormat>(pattern, locale, zone);
            known = format;
        }
        return format;
    }

private:
    std::map<std::pair<std::string, std::string>, std::weak_ptr<IcuFormat>> formats_;
    std::mutex mutex_;
};

IcuDateFormatters::IcuDateFormatters() : formats_(std::make_unique<Formats>()) {}

IcuDateFormatters::IcuDateFormatters(std::string locale, const std::string& timeZone)
    : locale_(std::move(locale)), zone_(timeZone), formats_(std::make_unique<Formats>()) {}

IcuDateFormatters::~IcuDateFormatters() = default;

std::unique_ptr<DateFormatter> IcuDateFormatters::make(std::string_view pattern) const {
    return std::make_unique<IcuDateFormatter>(formats_->format(localeNow(), pattern, zone_.current()));
}

bool IcuDateFormatters::isCurrent(const DateFormatter& formatter) const {
    const auto& format = static_cast<const IcuDateFormatter&>(formatter).format();
    return &format.zone() == zone_.current().get() && format.locale() == localeNow();
}

std::string IcuDateFormatters::localeNow() const {
    return locale_.empty() ? deviceLocale(LocalePurpose::Dates) : locale_;
}

} // namespace tessivo
