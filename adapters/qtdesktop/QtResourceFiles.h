#pragma once

#include "Ports/ResourceFiles.h"

namespace tessivo {

/// The resources that were linked into the program.
class QtResourceFiles final : public ResourceFiles {
public:
    [[nodiscard]] std::optional<std::string> read(std::string_view path) const override;
};

} // namespace tessivo
