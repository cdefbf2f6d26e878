#include "icu/DeviceLocale.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

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

std::string localeVariable(const std::string& localeName) {
    if (localeName == "en_US_POSIX")
        return "C.UTF-8";
    const auto keywords = localeName.find('@');
    const std::string rest = keywords == std::string::npos ? "" : localeName.substr(keywords);
    return localeName.substr(0, keywords) + ".UTF-8" + rest;
}

std::string localeDisplayName(const std::string& localeName, const std::string& language) {
    icu::UnicodeString name;
    icu::Locale(localeName.c_str()).getDisplayName(icu::Locale(language.c_str()), name);
    std::string text;
    return name.toUTF8String(text);
}

std::string languageFor(std::string_view localeName, std::span<const std::string_view> available) {
    const std::string language = icu::Locale::createCanonical(std::string(localeName).c_str()).getLanguage();
    return std::ranges::find(available, language) != available.end() ? language : "en";
}

} // namespace tessivo
