// Colour texts: every colour that is read keeps its components in range and survives being written.
#include "UnsplashPicker/HexColor.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessivo;
    const auto color = unsplash::colorFromHex({reinterpret_cast<const char*>(data), size});
    if (!color)
        return 0;
    for (const double component : {color->red, color->green, color->blue, color->alpha}) {
        if (!(component >= 0 && component <= 1))
            std::abort();
    }
    if (unsplash::colorFromHex(unsplash::hexFromColor(*color)) != color)
        std::abort();
    return 0;
}
