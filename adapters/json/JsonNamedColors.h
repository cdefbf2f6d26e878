#pragma once

#include "Ports/Error.h"
#include "Ports/NamedColors.h"

#include <functional>
#include <map>
#include <string>

namespace tessivo {

/// A catalogue of colours from one JSON object: {"name": "#RRGGBB" or "#RRGGBBAA", ...}.
class JsonNamedColors final : public NamedColors {
public:
    /// Reads and checks the whole catalogue; the error names the first colour that cannot be parsed.
    static Result<JsonNamedColors> fromJson(std::string_view json);

    std::optional<Color> colorNamed(std::string_view name) const override;

private:
    using Catalogue = std::map<std::string, Color, std::less<>>;
    explicit JsonNamedColors(Catalogue colors) : colors_(std::move(colors)) {}

    Catalogue colors_;
};

} // namespace tessivo
