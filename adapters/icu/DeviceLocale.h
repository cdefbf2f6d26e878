#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tessivo {

/// What a locale is asked for: how dates are written, or the language of the texts.
enum class LocalePurpose { Dates, Texts };

/// The device's locale as an ICU name ("de_DE"), from the first of these environment variables that says
/// something: LC_ALL, then LC_TIME or LC_MESSAGES by `purpose`, then LANG. "en_US_POSIX" where none does, and
/// for the "C" locale.
[[nodiscard]] std::string deviceLocale(LocalePurpose purpose);

/// The one of `available` (language codes such as "de") that serves `localeName`; "en" where none does.
[[nodiscard]] std::string languageFor(std::string_view localeName,
                                      std::span<const std::string_view> available);

} // namespace tessivo
