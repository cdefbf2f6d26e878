#pragma once

#include <cstddef>
#include <string_view>

namespace tessivo {

/// Counts text as its reader does. Pure, any thread.
class TextCounting {
public:
    virtual ~TextCounting() = default;

    /// User-perceived characters of UTF-8 `text`: an emoji of several code points counts one. Bytes that are
    /// no UTF-8 count one each.
    [[nodiscard]] virtual std::size_t characters(std::string_view text) const = 0;
};

} // namespace tessivo
