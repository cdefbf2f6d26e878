#pragma once

#include "Ports/ResourceFiles.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tessivo::fakes {

/// Resources as they lie in the source tree, for programs that have none of their own.
class FolderResources final : public ResourceFiles {
public:
    explicit FolderResources(std::filesystem::path folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::optional<std::string> read(std::string_view path) const override {
        std::ifstream file(folder_ / path, std::ios::binary);
        if (!file)
            return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

private:
    std::filesystem::path folder_;
};

} // namespace tessivo::fakes
