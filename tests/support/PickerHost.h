#pragma once

#include "UnsplashPicker/UnsplashPicker.h"
#include "support/Resources.h"
#include "json/JsonLocalizedTexts.h"

namespace tessivo::unsplash {

/// Records the outcome of a picker.
class PickerHost final : public UnsplashPickerDelegate {
public:
    void photoPickerDidSelect(UnsplashPicker&, const Photos& photos) override { chosen = photos; }
    void photoPickerDidCancel(UnsplashPicker&) override { ++cancelled; }

    std::optional<Photos> chosen;
    int cancelled = 0;
};

/// The picker's own texts in a language.
inline JsonLocalizedTexts pickerTexts(const std::string& language) {
    return JsonLocalizedTexts::fromJson(resource("unsplash-texts/" + language + ".json")).value();
}

} // namespace tessivo::unsplash
