#pragma once

#include "Ports/PhotoLibrary.h"

#include <utility>

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

    int opened = 0;

private:
    Chosen chosen_;
};

} // namespace tessivo::fakes
