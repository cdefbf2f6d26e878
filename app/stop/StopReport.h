#pragma once

#include "Ports/LocalizedTexts.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tessivo {

/// What a person can do about a program that stopped.
struct StopReport {
    std::string advice;
    std::string file; ///< the place on the disk that it is about

    /// The locale in which the dates were written that the present one cannot parse; empty if there are none,
    /// or if it was not recorded.
    std::string datesLocale;
    bool canRewriteDates = false;
};

/// Looks at the events file as the stopped program left it. Changes nothing but what opening it always does:
/// taking up what a killed program left. `locale` (an ICU name) is the present one, `language` (such as "de")
/// that of `texts`.
[[nodiscard]] StopReport makeStopReport(const std::filesystem::path& dataFolder, const std::string& locale,
                                        const std::string& language, const LocalizedTexts& texts);

/// Rewrites all dates into `locale`. Gives the reason on failure, and has then changed nothing.
[[nodiscard]] std::optional<std::string> rewriteDates(const std::filesystem::path& dataFolder,
                                                      const std::string& locale);

} // namespace tessivo
