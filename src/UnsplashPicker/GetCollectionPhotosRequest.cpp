#include "UnsplashPicker/GetCollectionPhotosRequest.h"

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

void GetCollectionPhotosRequest::processJSONResponse() {
    takeItems(*jsonResponse());
    UnsplashPagedRequest::processJSONResponse();
}

} // namespace tessivo::unsplash
