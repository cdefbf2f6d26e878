#include "UnsplashPicker/UnsplashPhotoItemProvider.h"

#include "Ports/HttpClient.h"
#include "UnsplashPicker/PhotoCoding.h"
#include "UnsplashPicker/PickerServices.h"

namespace tessivo::unsplash {

Result<UnsplashPhoto> UnsplashPhotoItemProvider::object(const JsonCoding& json, std::string_view data) {
    const auto value = json.parse(data);
    if (!value)
        return value.error();
    return decodePhoto(value.value());
}

std::shared_ptr<HttpTask> UnsplashPhotoItemProvider::loadData(std::string_view typeIdentifier,
                                                              Completion completion) const {
    services_.sendDownloadPing(photo_);
    if (typeIdentifier == photoType) {
        completion(services_.platform().json.write(encodePhoto(photo_)));
        return nullptr;
    }
    if (typeIdentifier != jpegType) {
        completion(ItemProviderError::invalidTypeIdentifier(typeIdentifier));
        return nullptr;
    }
    const auto regular = photo_.urls.find(URLKind::regular);
    if (regular == photo_.urls.end()) {
        completion(ItemProviderError::cannotDecodeLink(nameOf(URLKind::regular), photo_.identifier));
        return nullptr;
    }
    return services_.platform().http.start({.url = regular->second.absoluteString()},
                                           [completion](const Result<HttpResponse>& answer) {
                                               if (answer)
                                                   completion(answer.value().body);
                                               else
                                                   completion(answer.error());
                                           });
}

} // namespace tessivo::unsplash
