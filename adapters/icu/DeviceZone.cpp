#include "icu/DeviceZone.h"

#include "icu/IcuRequire.h"

#include <sys/stat.h>
#include <unicode/timezone.h>
#include <unicode/tztrans.h>
#include <unicode/unistr.h>

#include <cstdlib>

namespace tessivo {
namespace {

/// ICU makes no other kind of zone from its own tables or from the device.
std::shared_ptr<const icu::BasicTimeZone> asBasic(icu::TimeZone* zone) {
    return std::shared_ptr<const icu::BasicTimeZone>(static_cast<icu::BasicTimeZone*>(zone));
}

} // namespace

DeviceZone::DeviceZone(const std::string& name)
    : fixed_(true), zone_(asBasic(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)))) {}

std::shared_ptr<const icu::BasicTimeZone> DeviceZone::current() const {
    if (fixed_)
        return zone_;
    Source source = lookAtDevice();
    const std::scoped_lock lock(mutex_);
    if (!zone_ || source != source_) {
        zone_ = asBasic(icu::TimeZone::detectHostTimeZone());
        source_ = std::move(source);
    }
    return zone_;
}

DeviceZone::Source DeviceZone::lookAtDevice() {
    Source source;
    if (const char* variable = std::getenv("TZ")) {
        source.variable = variable;
        return source;
    }
    struct stat link {};
    // The link itself: choosing a zone replaces it, and the dates of the zone files say nothing.
    if (lstat("/etc/localtime", &link) == 0) {
        source.file = link.st_ino;
        source.seconds = link.st_mtim.tv_sec;
        source.nanoseconds = link.st_mtim.tv_nsec;
    }
    return source;
}

UDate momentOfWallTime(const icu::BasicTimeZone& zone, UDate wall) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t raw = 0;
    std::int32_t saving = 0;
    zone.getOffsetFromLocal(wall, UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, saving, status);
    const UDate moment = wall - raw - saving;
    std::int32_t rawThen = 0;
    std::int32_t savingThen = 0;
    zone.getOffset(moment, false, rawThen, savingThen, status);
    icu_adapter::require(status, "time zone offsets");

    const bool skipped = rawThen + savingThen != raw + saving;
    icu::TimeZoneTransition change;
    if (skipped && zone.getPreviousTransition(moment, true, change))
        return change.getTime();
    return moment;
}

} // namespace tessivo
