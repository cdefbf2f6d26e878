#pragma once

#include "UnsplashPicker/UnsplashPhoto.h"
#include "UnsplashPicker/UnsplashRequest.h"

namespace tessivo::unsplash {

/// Which page of which query.
struct Cursor {
    std::int64_t page = 1; ///< from 1
    std::int64_t perPage = 30;
    std::optional<Parameters> parameters;

    friend bool operator==(const Cursor&, const Cursor&) = default;
};

/// A request for one page of photos.
class UnsplashPagedRequest : public UnsplashRequest {
public:
    UnsplashPagedRequest(const PickerPlatform& platform, UnsplashPickerConfiguration configuration,
                         Cursor cursor)
        : UnsplashRequest(platform, std::move(configuration)), cursor_(std::move(cursor)) {}

    [[nodiscard]] const Cursor& cursor() const { return cursor_; }
    /// The photos of the answer; settled before the operation is finished.
    [[nodiscard]] const std::vector<UnsplashPhoto>& items() const { return items_; }

protected:
    [[nodiscard]] std::optional<Parameters> prepareParameters() const override;
    /// Keeps the photos of a list, or the error that they do not decode with.
    void takeItems(const JsonValue& list);

private:
    const Cursor cursor_;
    std::vector<UnsplashPhoto> items_;
};

} // namespace tessivo::unsplash
