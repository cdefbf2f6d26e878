#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// Answers from the network by the full address that gave them, in memory and on disk; the least recently
/// used go first. Any thread.
class ResponseCache {
public:
    virtual ~ResponseCache() = default;

    /// The body stored for `url`; empty where there is none or the disk cannot be read.
    [[nodiscard]] virtual std::optional<std::string> find(const std::string& url) = 0;

    /// Keeps `body` for `url` in place of an older one. A body beyond a capacity, and one that cannot be
    /// written, is not kept there.
    virtual void store(const std::string& url, const std::string& body) = 0;
};

/// Opens caches.
class ResponseCaches {
public:
    virtual ~ResponseCaches() = default;

    /// The cache in the folder `name` of the user's caches, with capacities in bytes. Never null; one whose
    /// folder cannot be made keeps to memory.
    [[nodiscard]] virtual std::unique_ptr<ResponseCache>
    open(std::string_view name, std::int64_t memoryCapacity, std::int64_t diskCapacity) = 0;
};

} // namespace tessivo
