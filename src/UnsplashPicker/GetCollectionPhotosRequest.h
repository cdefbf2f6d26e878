#pragma once

#include "UnsplashPicker/UnsplashPagedRequest.h"

namespace tessivo::unsplash {

/// A page of the photos of a collection, which the cursor's parameter "id" names.
class GetCollectionPhotosRequest final : public UnsplashPagedRequest {
public:
    GetCollectionPhotosRequest(const PickerPlatform& platform, UnsplashPickerConfiguration configuration,
                               Cursor cursor);

    [[nodiscard]] const std::string& collectionId() const { return collectionId_; }

protected:
    [[nodiscard]] std::string endpoint() const override;
    [[nodiscard]] std::optional<Parameters> prepareParameters() const override;
    void processJSONResponse() override;

private:
    std::string collectionId_;
};

} // namespace tessivo::unsplash
