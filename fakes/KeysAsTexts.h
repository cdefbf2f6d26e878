#pragma once

#include "Ports/LocalizedTexts.h"

namespace tessivo::fakes {

/// A text table without entries: each text is its key.
class KeysAsTexts final : public LocalizedTexts {
public:
    [[nodiscard]] std::string localizedString(std::string_view key) const override {
        return std::string(key);
    }
};

} // namespace tessivo::fakes
