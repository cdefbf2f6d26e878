#pragma once

#include <string>
#include <string_view>

namespace tessivo {

/// Texts in the device's language, which is settled when the program starts. Pure, main thread.
class LocalizedTexts {
public:
    virtual ~LocalizedTexts() = default;

    /// The text of `key`; the key itself where no table has it.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;
};

} // namespace tessivo
