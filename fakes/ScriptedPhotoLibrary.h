#pragma once

#include "Ports/PhotoLibrary.h"

#include <string>
#include <utility>
#include <vector>

namespace tessivo::fakes {

/// A photo library in which the test chooses.
class ScriptedPhotoLibrary final : public PhotoLibrary {
public:
    void choosePhoto(Chosen chosen) override {
        ++opened;
        chosen_ = std::move(chosen);
    }

    /// Answers the open choice.
    void choose(Choice choice) { std::exchange(chosen_, {})(std::move(choice)); }

    Result<Url> keep(std::string_view data) override {
        if (failure)
            return *failure;
        kept.emplace_back(data);
        return Url::ofFile("/photos/" + std::to_string(kept.size()) + ".jpg");
    }

    int opened = 0;
    std::vector<std::string> kept; ///< the data, the last one at /photos/ and its number
    Outcome failure;               ///< of the next attempts to keep a photo

private:
    Chosen chosen_;
};

} // namespace tessivo::fakes
