#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// The identity of an event: 16 bytes, written as 8-4-4-4-12 hexadecimal digits.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// The canonical text, in upper case.
    [[nodiscard]] std::string uuidString() const;

    /// Reads the canonical text in either case; empty for anything else.
    [[nodiscard]] static std::optional<Uuid> fromString(std::string_view text);

    friend auto operator<=>(const Uuid&, const Uuid&) = default;
};

/// Where new identities come from. Main thread; cannot fail.
class UuidSource {
public:
    virtual ~UuidSource() = default;

    /// A new random identity (version 4).
    [[nodiscard]] virtual Uuid random() = 0;
};

} // namespace tessivo
