#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tessivo {

/// What a locale is used for: how dates are written, or the language of the texts.
enum class LocalePurpose { Dates, Texts };

/// The device's locale as an ICU name ("de_DE"), from the first of these environment variables that is set:
/// LC_ALL, then LC_TIME or LC_MESSAGES by `purpose`, then LANG. "en_US_POSIX" where none does, and for the
/// "C" locale.
[[nodiscard]] std::string deviceLocale(LocalePurpose purpose);

/// The value of LC_ALL with which the device's locale is that one.
[[nodiscard]] std::string localeVariable(const std::string& localeName);

/// What speakers of `language` call that locale: "German (Germany)".
[[nodiscard]] std::string localeDisplayName(const std::string& localeName, const std::string& language);

/// The one of `available` (language codes such as "de") that serves `localeName`; "en" where none does.
[[nodiscard]] std::string languageFor(std::string_view localeName,
                                      std::span<const std::string_view> available);

} // namespace tessivo
