#pragma once

#include <QSize>

namespace tessivo::tour {

/// A screen and a language to take pictures in.
struct Stage {
    const char* name;
    QSize size;
    const char* locale;
    const char* language; ///< of the texts
    double textScale = 1;
};

inline constexpr Stage stages[] = {
    {"phone", {390, 844}, "en_US.UTF-8", "en"},         {"small-phone", {360, 640}, "de_DE.UTF-8", "de"},
    {"tablet", {834, 1194}, "ja_JP.UTF-8", "ja"},       {"desktop", {1280, 800}, "fr_FR.UTF-8", "fr"},
    {"right-to-left", {390, 844}, "ar_EG.UTF-8", "ar"}, {"spanish", {360, 640}, "es_ES.UTF-8", "es"},
    {"russian", {360, 640}, "ru_RU.UTF-8", "ru"},       {"large-text", {412, 915}, "de_DE.UTF-8", "de", 2}};

} // namespace tessivo::tour
