#include "icu/DeviceLocale.h"

#include <unicode/locid.h>

#include <algorithm>
#include <cstdlib>

namespace tessivo {
namespace {

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::string deviceLocale(LocalePurpose purpose) {
    std::string_view name = environment("LC_ALL");
    if (name.empty())
        name = environment(purpose == LocalePurpose::Dates ? "LC_TIME" : "LC_MESSAGES");
    if (name.empty())
        name = environment("LANG");

    const std::string_view beforeEncoding = name.substr(0, name.find('.'));
    if (beforeEncoding.empty() || beforeEncoding == "C" || beforeEncoding == "POSIX")
        return "en_US_POSIX";
    return icu::Locale::createCanonical(std::string(name).c_str()).getName();
}

std::string languageFor(std::string_view localeName, std::span<const std::string_view> available) {
    const std::string language = icu::Locale::createCanonical(std::string(localeName).c_str()).getLanguage();
    return std::ranges::find(available, language) != available.end() ? language : "en";
}

} // namespace tessivo
