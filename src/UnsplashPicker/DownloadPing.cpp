#include "UnsplashPicker/DownloadPing.h"

#include "Ports/HttpClient.h"
#include "UnsplashPicker/PickerServices.h"
#include "UnsplashPicker/UnsplashPhoto.h"

namespace tessivo::unsplash {

void sendDownloadPing(const PickerServices& services, const UnsplashPhoto& photo) {
    const auto link = photo.links.find(PhotoLinkKind::downloadLocation);
    if (link == photo.links.end())
        return;
    const Url address = link->second.appendingQueryItem("client_id", services.configuration().accessKey);
    services.platform().http.start({.url = address.absoluteString()}, [](const Result<HttpResponse>&) {});
}

} // namespace tessivo::unsplash
