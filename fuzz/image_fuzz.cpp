// Picture data: a picture or none, of the size that its pixels have.
#include "qtimage/QtImageCoding.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessivo;
    const auto bitmap =
        QtImageCoding().decode({reinterpret_cast<const char*>(data), size}, PixelSize{64, 64});
    if (bitmap && bitmap->pixels.size() !=
                      static_cast<std::size_t>(bitmap->width) * static_cast<std::size_t>(bitmap->height) * 4)
        std::abort();
    return 0;
}
