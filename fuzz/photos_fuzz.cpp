// Answers of the photo service: whatever comes, it is read or refused, and what is read can be written and
// read again as the same.
#include "UnsplashPicker/PhotoCoding.h"
#include "json/NlohmannJson.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessivo;
    const NlohmannJson json;
    const auto document = json.parse({reinterpret_cast<const char*>(data), size});
    if (!document)
        return 0;
    const auto photos = unsplash::decodePhotos(document.value());
    if (!photos)
        return 0;
    JsonValue::Array list;
    for (const auto& photo : photos.value())
        list.push_back(unsplash::encodePhoto(*photo));
    const auto again = json.parse(json.write(JsonValue(std::move(list))));
    if (!again)
        std::abort();
    const auto same = unsplash::decodePhotos(again.value());
    const auto isEqual = [](const auto& one, const auto& other) { return *one == *other; };
    if (!same || !std::ranges::equal(same.value(), photos.value(), isEqual))
        std::abort();
    return 0;
}
