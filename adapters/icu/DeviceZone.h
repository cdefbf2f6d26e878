#pragma once

#include <unicode/basictz.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

namespace tessivo {

/// The device's time zone, which the user may change while the program runs: by the variable TZ or, without
/// it, by the file /etc/localtime. Any thread.
class DeviceZone final {
public:
    /// Follows the device.
    DeviceZone() = default;

    /// Stays at the zone of that name ("Asia/Beirut"), whatever the device says; GMT for an unknown name.
    explicit DeviceZone(const std::string& name);

    /// The zone as it stands now. The same object as long as nothing changed, so that comparing pointers
    /// detects a change. Costs one look at the environment and at the file's date.
    [[nodiscard]] std::shared_ptr<const icu::BasicTimeZone> current() const;

private:
    /// What the zone was read from; differs after any change of the device's zone.
    struct Source {
        std::string variable;
        std::uint64_t file = 0;
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;

        friend bool operator==(const Source&, const Source&) = default;
    };

    [[nodiscard]] static Source lookAtDevice();

    const bool fixed_ = false;
    mutable std::mutex mutex_; ///< guards the two below
    mutable Source source_;
    mutable std::shared_ptr<const icu::BasicTimeZone> zone_;
};

/// The moment at which clocks of `zone` show `wall` (milliseconds since 1970 as if the zone were GMT). Of a
/// wall time that comes twice, the first; for one that a clock change skips, the moment of the change.
[[nodiscard]] UDate momentOfWallTime(const icu::BasicTimeZone& zone, UDate wall);

} // namespace tessivo
