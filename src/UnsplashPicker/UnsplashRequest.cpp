#include "UnsplashPicker/UnsplashRequest.h"

#include "UnsplashPicker/PhotoCoding.h"

namespace tessivo::unsplash {
namespace {

constexpr auto idKey = "id";

std::string idOf(const Cursor& cursor) {
    if (!cursor.parameters)
        return {};
    const auto found = cursor.parameters->find(idKey);
    const auto* text = found == cursor.parameters->end() ? nullptr : std::get_if<std::string>(&found->second);
    return text ? *text : std::string();
}

} // namespace

std::optional<Url> UnsplashRequest::urlComponents() const {
    const auto base = Url::parse(configuration_.apiURL());
    return base ? std::optional(base->withPath(endpoint())) : std::nullopt;
}

HttpHeaders UnsplashRequest::headers() const {
    return {{"Authorization", "Client-ID " + configuration_.accessKey}};
}

void UnsplashRequest::processResponseData(const std::string& data) {
    processResponse(platform().json.parse(data));
}

void UnsplashRequest::processResponse(Result<JsonValue> json) {
    if (error()) {
        cancel();
        finish();
        return;
    }
    if (!json)
        return fail(RequestError::invalidJSONResponse());
    jsonResponse_ = std::move(json.value());
    processJSONResponse();
}

void UnsplashRequest::processJSONResponse() {
    if (error())
        cancel();
    finish();
}

std::optional<Parameters> UnsplashPagedRequest::prepareParameters() const {
    Parameters parameters = cursor_.parameters.value_or(Parameters());
    parameters.insert_or_assign("page", cursor_.page);
    parameters.insert_or_assign("per_page", cursor_.perPage);
    return parameters;
}

void UnsplashPagedRequest::takeItems(const JsonValue& list) {
    auto photos = decodePhotos(list);
    if (photos)
        items_ = std::move(photos.value());
    else
        setError(photos.error());
}

std::string SearchPhotosRequest::endpoint() const {
    return "/search/photos";
}

void SearchPhotosRequest::processJSONResponse() {
    // A response without results means no hits, not an error.
    const auto* results = jsonResponse()->find("results");
    if (results && results->as<JsonValue::Array>())
        takeItems(*results);
    UnsplashPagedRequest::processJSONResponse();
}

GetCollectionPhotosRequest::GetCollectionPhotosRequest(const PickerPlatform& platform,
                                                       UnsplashPickerConfiguration configuration,
                                                       Cursor cursor)
    : UnsplashPagedRequest(platform, std::move(configuration), std::move(cursor)),
      collectionId_(idOf(this->cursor())) {}

std::string GetCollectionPhotosRequest::endpoint() const {
    return "/collections/" + collectionId_ + "/photos";
}

std::optional<Parameters> GetCollectionPhotosRequest::prepareParameters() const {
    auto parameters = UnsplashPagedRequest::prepareParameters();
    parameters->erase(idKey);
    return parameters;
}

void GetCollectionPhotosRequest::processResponse(Result<JsonValue> json) {
    if (json)
        takeItems(json.value());
    else
        setError(decodingError(json.error().description));
    UnsplashPagedRequest::processResponse(std::move(json));
}

} // namespace tessivo::unsplash
