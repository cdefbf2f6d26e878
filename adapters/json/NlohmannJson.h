#pragma once

#include "Ports/Json.h"

namespace tessivo {

/// JSON, read straight into the program's own values.
class NlohmannJson final : public JsonCoding {
public:
    Result<JsonValue> parse(std::string_view text) const override;
    std::string write(const JsonValue& value) const override;
};

} // namespace tessivo
