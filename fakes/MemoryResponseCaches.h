#pragma once

#include "Ports/ResponseCache.h"

#include <map>
#include <vector>

namespace tessivo::fakes {

/// Caches that forget nothing, and remember how they were opened.
class MemoryResponseCaches final : public ResponseCaches {
public:
    struct Opening {
        std::string name;
        std::int64_t memoryCapacity;
        std::int64_t diskCapacity;

        friend bool operator==(const Opening&, const Opening&) = default;
    };

    std::unique_ptr<ResponseCache> open(std::string_view name, std::int64_t memoryCapacity,
                                        std::int64_t diskCapacity) override {
        openings.push_back({std::string(name), memoryCapacity, diskCapacity});
        return std::make_unique<Cache>(bodies);
    }

    std::vector<Opening> openings;
    std::map<std::string, std::string> bodies;

private:
    class Cache final : public ResponseCache {
    public:
        explicit Cache(std::map<std::string, std::string>& bodies) : bodies_(bodies) {}

        std::optional<std::string> find(const std::string& url) override {
            const auto found = bodies_.find(url);
            return found == bodies_.end() ? std::nullopt : std::optional(found->second);
        }
        void store(const std::string& url, const std::string& body) override { bodies_[url] = body; }

    private:
        std::map<std::string, std::string>& bodies_;
    };
};

} // namespace tessivo::fakes
