#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// The files that are part of the program itself. Pure, main thread.
class ResourceFiles {
public:
    virtual ~ResourceFiles() = default;

    /// What the file holds, by its path below the resources, such as "texts/en.json"; empty where there is
    /// none.
    [[nodiscard]] virtual std::optional<std::string> read(std::string_view path) const = 0;
};

} // namespace tessivo
