#pragma once

#include "UnsplashPicker/NetworkRequest.h"
#include "UnsplashPicker/UnsplashPickerConfiguration.h"

namespace tessivo::unsplash {

/// A request to the photo service, whose answers are JSON.
class UnsplashRequest : public NetworkRequest {
public:
    UnsplashRequest(const PickerPlatform& platform, UnsplashPickerConfiguration configuration)
        : NetworkRequest(platform), configuration_(std::move(configuration)) {}

    /// The answer, once there is one.
    [[nodiscard]] const std::optional<JsonValue>& jsonResponse() const { return jsonResponse_; }

protected:
    [[nodiscard]] std::optional<Url> urlComponents() const override;
    [[nodiscard]] HttpHeaders headers() const override;
    void processResponseData(const std::string& data) override;
    /// Overrides make their items of `jsonResponse` and end in this.
    virtual void processJSONResponse();

    [[nodiscard]] const UnsplashPickerConfiguration& configuration() const { return configuration_; }

private:
    const UnsplashPickerConfiguration configuration_; ///< as it was in force when the request was made
    std::optional<JsonValue> jsonResponse_;
};

} // namespace tessivo::unsplash
