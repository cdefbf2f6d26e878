// Picture data: a picture or none; one has the pixels of its size, which just cover the size asked for.
#include "qtimage/QtImageCoding.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessivo;
    if (size < 2)
        return 0;
    // The first bytes choose the size, so that the fuzzer explores reduced, whole and lopsided reading.
    const PixelSize covering{1 + data[0] * 4, 1 + data[1] * 4};
    const std::string_view picture(reinterpret_cast<const char*>(data) + 2, size - 2);
    const auto whole = data[0] == 0;
    const auto bitmap = QtImageCoding().decode(picture, whole ? std::nullopt : std::optional(covering));
    if (bitmap && bitmap->pixels.size() !=
                      static_cast<std::size_t>(bitmap->width) * static_cast<std::size_t>(bitmap->height) * 4)
        std::abort();
    // Reduced until one side is just covered: never more than is needed on both.
    if (bitmap && !whole && bitmap->width > covering.width + 1 && bitmap->height > covering.height + 1)
        std::abort();
    return 0;
}
