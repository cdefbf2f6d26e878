#include "UnsplashPicker/UnsplashPagedRequest.h"

#include "UnsplashPicker/PhotoCoding.h"

namespace tessivo::unsplash {

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

} // namespace tessivo::unsplash
