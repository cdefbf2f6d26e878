#pragma once

namespace tessivo::unsplash {

class PickerServices;
struct UnsplashPhoto;

/// Tells the service that the photo is being used, as its terms ask. Nobody waits for the answer.
void sendDownloadPing(const PickerServices& services, const UnsplashPhoto& photo);

} // namespace tessivo::unsplash
