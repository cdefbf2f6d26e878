#pragma once

#include "Ports/Error.h"
#include "Ports/LocalizedTexts.h"
#include "json/TextTable.h"

namespace tessivo {

/// The texts of one language from one JSON object: {"key": "text", ...}.
class JsonLocalizedTexts final : public LocalizedTexts {
public:
    /// No texts at all: every key is returned as it is.
    JsonLocalizedTexts() = default;

    static Result<JsonLocalizedTexts> fromJson(std::string_view json);

    std::string localizedString(std::string_view key) const override;

private:
    explicit JsonLocalizedTexts(TextTable texts) : texts_(std::move(texts)) {}

    TextTable texts_;
};

} // namespace tessivo
