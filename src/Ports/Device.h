#pragma once

#include <optional>
#include <string>

namespace tessivo {

/// The machine that the program runs on, as a support mail names it. Main thread; cannot fail.
class Device {
public:
    virtual ~Device() = default;

    /// What the hardware calls itself, such as "PinePhone" or "ThinkPad X13"; the processor's kind, such as
    /// "x86_64", where it says nothing.
    [[nodiscard]] virtual std::string modelIdentifier() const = 0;
    /// The system with its version, such as "Debian GNU/Linux 12 (bookworm)".
    [[nodiscard]] virtual std::string systemVersion() const = 0;
    /// Which device a simulator stands in for; empty outside of one.
    [[nodiscard]] virtual std::optional<std::string> simulatedModelIdentifier() const = 0;
};

/// What this build calls itself.
struct Bundle {
    std::optional<std::string> shortVersion; ///< as users see it, such as "0.1.0"
    std::string version;                     ///< the build's number
    std::string identifier = "org.tessivo.Tessivo";
    std::string preferredLocalization = "en"; ///< the language of its texts
};

} // namespace tessivo
