#pragma once

#include "Ports/Error.h"
#include "UnsplashPicker/UnsplashPhoto.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace tessivo {
class HttpTask;
class JsonCoding;
} // namespace tessivo

namespace tessivo::unsplash {

class PickerServices;

namespace ItemProviderError {

inline constexpr auto domain = "ItemProviderError";

inline Error cannotDecodeLink(std::string_view key, std::string_view photoIdentifier) {
    return {domain, 1,
            "The photo " + std::string(photoIdentifier) + " has no address of kind " + std::string(key)};
}
inline Error invalidTypeIdentifier(std::string_view typeIdentifier) {
    return {domain, 2, "A photo cannot be had as " + std::string(typeIdentifier)};
}

} // namespace ItemProviderError

/// One photo for other programs, as the module's own record or as a JPEG. Main thread.
class UnsplashPhotoItemProvider final {
public:
    static constexpr auto photoType = "com.unsplash.photo";
    static constexpr auto jpegType = "public.jpeg";

    UnsplashPhotoItemProvider(const PickerServices& services, UnsplashPhoto photo)
        : services_(services), photo_(std::move(photo)) {}

    [[nodiscard]] const UnsplashPhoto& photo() const { return photo_; }

    /// What it can hand out, the best first.
    [[nodiscard]] const std::vector<std::string>& writableTypeIdentifiers() const { return writableTypes_; }
    void setWritableTypeIdentifiers(std::vector<std::string> types) { writableTypes_ = std::move(types); }
    [[nodiscard]] static std::vector<std::string> readableTypeIdentifiers() { return {photoType}; }

    /// The photo in data of a readable type.
    [[nodiscard]] static Result<UnsplashPhoto> object(const JsonCoding& json, std::string_view data);

    using Completion = std::function<void(Result<std::string> data)>;
    /// Tells the service of the use, then hands the photo as `typeIdentifier` to `completion`: at once, or
    /// for a picture on the network's thread. The task is null where nothing is fetched.
    std::shared_ptr<HttpTask> loadData(std::string_view typeIdentifier, Completion completion) const;

private:
    const PickerServices& services_;
    const UnsplashPhoto photo_;
    std::vector<std::string> writableTypes_{photoType, jpegType};
};

} // namespace tessivo::unsplash
