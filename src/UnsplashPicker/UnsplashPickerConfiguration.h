#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tessivo::unsplash {

/// How strictly the service keeps doubtful pictures out.
enum class ContentFilterLevel { low, high };

[[nodiscard]] constexpr std::string_view rawValue(ContentFilterLevel level) {
    return level == ContentFilterLevel::low ? "low" : "high";
}

/// What the host program configures.
class UnsplashPickerConfiguration {
public:
    /// For the photo service that the build is made for.
    UnsplashPickerConfiguration();
    explicit UnsplashPickerConfiguration(std::string apiURL) : apiURL_(std::move(apiURL)) {}

    std::string accessKey;            ///< goes to the service with each request
    std::string secretKey;            ///< carried for the host; nothing uses it
    std::optional<std::string> query; ///< a fixed search, which takes the place of the search bar
    bool allowsMultipleSelection = false;
    std::int64_t memoryCapacity = std::int64_t{50} * 1024 * 1024; ///< bytes of pictures kept
    std::int64_t diskCapacity = std::int64_t{100} * 1024 * 1024;
    ContentFilterLevel contentFilterLevel = ContentFilterLevel::low;

    [[nodiscard]] const std::string& apiURL() const { return apiURL_; }
    [[nodiscard]] const std::string& editorialCollectionId() const { return editorialCollectionId_; }

private:
    std::string apiURL_;
    std::string editorialCollectionId_ = "317099";
};

} // namespace tessivo::unsplash
