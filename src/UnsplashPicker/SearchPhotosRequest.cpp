#include "UnsplashPicker/SearchPhotosRequest.h"

namespace tessivo::unsplash {

std::string SearchPhotosRequest::endpoint() const {
    return "/search/photos";
}

void SearchPhotosRequest::processJSONResponse() {
    // An answer without results is one without hits, not a fault.
    const auto* results = jsonResponse()->find("results");
    if (results && results->as<JsonValue::Array>())
        takeItems(*results);
    UnsplashPagedRequest::processJSONResponse();
}

} // namespace tessivo::unsplash
