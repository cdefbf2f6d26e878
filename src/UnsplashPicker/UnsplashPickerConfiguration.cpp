#include "UnsplashPicker/UnsplashPickerConfiguration.h"

#include "UnsplashPicker/ServiceAddress.h"

namespace tessivo::unsplash {

UnsplashPickerConfiguration::UnsplashPickerConfiguration() : apiURL_(serviceAddress) {}

} // namespace tessivo::unsplash
