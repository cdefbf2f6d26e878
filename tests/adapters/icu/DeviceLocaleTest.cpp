#include "icu/DeviceLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <map>

namespace tessivo {
namespace {

constexpr std::array variables{"LC_ALL", "LC_TIME", "LC_MESSAGES", "LANG"};

/// Sets exactly these variables, and takes them away again.
class Environment {
public:
    explicit Environment(const std::map<std::string, std::string>& values) {
        clear();
        for (const auto& [name, value] : values)
            ::setenv(name.c_str(), value.c_str(), 1);
    }
    ~Environment() { clear(); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    static void clear() {
        for (const char* name : variables)
            ::unsetenv(name);
    }
};

TEST(DeviceLocale, TheFirstVariableThatSaysSomethingDecides) {
    struct Case {
        std::map<std::string, std::string> environment;
        const char* dates;
        const char* texts;
    };
    for (const auto& [environment, dates, texts] : {
             Case{{}, "en_US_POSIX", "en_US_POSIX"},
             Case{{{"LANG", "de_DE.UTF-8"}}, "de_DE", "de_DE"},
             Case{{{"LANG", "C.UTF-8"}}, "en_US_POSIX", "en_US_POSIX"},
             Case{{{"LANG", "en_US.UTF-8"}, {"LC_TIME", "fr_FR.UTF-8"}}, "fr_FR", "en_US"},
             Case{{{"LANG", "en_US.UTF-8"}, {"LC_MESSAGES", "ja_JP.UTF-8"}}, "en_US", "ja_JP"},
             Case{{{"LANG", "en_US"}, {"LC_TIME", "fr_FR"}, {"LC_ALL", "ar_EG.UTF-8"}}, "ar_EG", "ar_EG"},
             Case{{{"LANG", "en_GB.UTF-8"}, {"LC_TIME", ""}, {"LC_ALL", ""}}, "en_GB", "en_GB"},
             Case{{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "POSIX"}}, "en_US_POSIX", "en_US_POSIX"},
         }) {
        const Environment set(environment);
        EXPECT_EQ(deviceLocale(LocalePurpose::Dates), dates);
        EXPECT_EQ(deviceLocale(LocalePurpose::Texts), texts);
    }
}

TEST(DeviceLocale, IsTheOneThatItsVariableWasMadeFor) {
    for (const char* locale : {"de_DE", "zh_Hans_CN", "fa_IR", "th_TH@calendar=buddhist",
                               "ca_ES@currency=eur", "en_US_POSIX", "ja"}) {
        const Environment set({{"LANG", "fr_FR"}, {"LC_ALL", localeVariable(locale)}});
        EXPECT_EQ(deviceLocale(LocalePurpose::Dates), locale) << localeVariable(locale);
    }
}

TEST(LanguageFor, IsTheLocalesOwnWhereThereAreTextsAndElseEnglish) {
    constexpr std::array<std::string_view, 7> available{"en", "de", "fr", "es", "ru", "ja", "ar"};
    for (const auto& [locale, language] : std::map<std::string, std::string>{{"de_AT", "de"},
                                                                             {"fr-CA", "fr"},
                                                                             {"ar_EG", "ar"},
                                                                             {"ja_JP.UTF-8", "ja"},
                                                                             {"es_419", "es"},
                                                                             {"en_US_POSIX", "en"},
                                                                             {"zh_Hans_CN", "en"},
                                                                             {"deutsch", "en"},
                                                                             {"", "en"}})
        EXPECT_EQ(languageFor(locale, available), language) << locale;
}

} // namespace
} // namespace tessivo
