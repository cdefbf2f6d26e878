#include "UnsplashPicker/UnsplashRequest.h"

#include "UnsplashPicker/RequestError.h"

namespace tessivo::unsplash {

std::optional<Url> UnsplashRequest::urlComponents() const {
    const auto base = Url::parse(configuration_.apiURL());
    return base ? std::optional(base->withPath(endpoint())) : std::nullopt;
}

HttpHeaders UnsplashRequest::headers() const {
    return {{"Authorization", "Client-ID " + configuration_.accessKey}};
}

void UnsplashRequest::processResponseData(const std::string& data) {
    if (error()) {
        cancel();
        finish();
        return;
    }
    auto json = platform().json.parse(data);
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

} // namespace tessivo::unsplash
