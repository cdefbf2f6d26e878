#pragma once

#include <optional>
#include <string_view>

namespace tessivo {

/// A colour in sRGB, each component from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    friend bool operator==(const Color&, const Color&) = default;
};

/// The catalogue of the program's colours. Pure, main thread.
class NamedColors {
public:
    virtual ~NamedColors() = default;

    /// The colour of that name, empty where the catalogue has none.
    [[nodiscard]] virtual std::optional<Color> colorNamed(std::string_view name) const = 0;
};

} // namespace tessivo
