#pragma once

#include "Ports/ResponseCache.h"

#include <filesystem>

namespace tessivo {

/// Response caches in folders of the user's caches.
class QtResponseCaches final : public ResponseCaches {
public:
    /// `folder` is the program's own folder in the user's caches; made when it is needed.
    explicit QtResponseCaches(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::unique_ptr<ResponseCache> open(std::string_view name, std::int64_t memoryCapacity,
                                        std::int64_t diskCapacity) override;

private:
    std::filesystem::path folder_;
};

} // namespace tessivo
