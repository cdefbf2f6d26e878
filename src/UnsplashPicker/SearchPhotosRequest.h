#pragma once

#include "UnsplashPicker/UnsplashPagedRequest.h"

namespace tessivo::unsplash {

/// A page of the photos that match a text.
class SearchPhotosRequest final : public UnsplashPagedRequest {
public:
    using UnsplashPagedRequest::UnsplashPagedRequest;

protected:
    [[nodiscard]] std::string endpoint() const override;
    void processJSONResponse() override;
};

} // namespace tessivo::unsplash
