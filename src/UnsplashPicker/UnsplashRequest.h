#pragma once

#include "UnsplashPicker/NetworkRequest.h"
#include "UnsplashPicker/UnsplashPhoto.h"
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
    virtual void processResponse(Result<JsonValue> json);
    /// Overrides make their items of `jsonResponse` and end in this.
    virtual void processJSONResponse();

    [[nodiscard]] const UnsplashPickerConfiguration& configuration() const { return configuration_; }

private:
    const UnsplashPickerConfiguration configuration_; ///< as it was in force when the request was made
    std::optional<JsonValue> jsonResponse_;
};

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
    [[nodiscard]] const Photos& items() const { return items_; }

protected:
    [[nodiscard]] std::optional<Parameters> prepareParameters() const override;
    /// Keeps the photos of a list, or the error of decoding them.
    void takeItems(const JsonValue& list);

private:
    const Cursor cursor_;
    Photos items_;
};

/// A page of the photos that match a text.
class SearchPhotosRequest final : public UnsplashPagedRequest {
public:
    using UnsplashPagedRequest::UnsplashPagedRequest;

protected:
    [[nodiscard]] std::string endpoint() const override;
    void processJSONResponse() override;
};

/// A page of the photos of a collection, which the cursor's parameter "id" names.
class GetCollectionPhotosRequest final : public UnsplashPagedRequest {
public:
    GetCollectionPhotosRequest(const PickerPlatform& platform, UnsplashPickerConfiguration configuration,
                               Cursor cursor);

    [[nodiscard]] const std::string& collectionId() const { return collectionId_; }

protected:
    [[nodiscard]] std::string endpoint() const override;
    [[nodiscard]] std::optional<Parameters> prepareParameters() const override;
    /// The body itself is the list: a body that is not JSON is a decoding failure here.
    void processResponse(Result<JsonValue> json) override;

private:
    std::string collectionId_;
};

} // namespace tessivo::unsplash
