#pragma once

#include "Ports/NamedColors.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo::ui {

/// A colour of the catalogue by its name, or a value where no name fits. Empty of both is no colour.
struct ColorRef {
    std::string name;
    std::optional<Color> value;

    static ColorRef named(std::string_view name) { return {std::string(name), std::nullopt}; }
    static ColorRef of(Color color) { return {{}, color}; }
    static ColorRef white() { return of({1, 1, 1, 1}); }
    static ColorRef black() { return of({0, 0, 0, 1}); }
    static ColorRef clear() { return of({0, 0, 0, 0}); }

    [[nodiscard]] bool isSet() const { return !name.empty() || value.has_value(); }

    friend bool operator==(const ColorRef&, const ColorRef&) = default;
};

enum class FontWeight { Regular = 400, Medium = 500, Semibold = 600, Bold = 700 };

/// The system font at a size in points.
struct Font {
    double size = 17;
    FontWeight weight = FontWeight::Regular;

    friend bool operator==(const Font&, const Font&) = default;
};

struct TextRun {
    std::string text;
    Font font;
    ColorRef color;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// Text whose stretches look different. UTF-8; a line feed breaks the line.
struct StyledText {
    std::vector<TextRun> runs;

    [[nodiscard]] std::string string() const;

    friend bool operator==(const StyledText&, const StyledText&) = default;
};

/// A stretch of text in 16-bit units, as touch keyboards give it.
struct TextRange {
    std::size_t location = 0;
    std::size_t length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// Length of UTF-8 `text` in 16-bit units.
[[nodiscard]] std::size_t utf16Length(std::string_view text);

/// `text` with `range` replaced. A range that reaches beyond the text is cut to it; an end that falls inside
/// a character moves to that character's start.
[[nodiscard]] std::string replacing(std::string_view text, TextRange range, std::string_view replacement);

} // namespace tessivo::ui
