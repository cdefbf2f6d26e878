#pragma once

#include "Support/LocalizationVariables.h"

namespace tessivo {

/// Keeps texts of its own for what speaks back to the user.
class NetworkActivityIndicatorManager final {
public:
    explicit NetworkActivityIndicatorManager(const LocalizedTexts& texts) : local(texts) {}

    const LocalizationVariables local;
};

} // namespace tessivo
