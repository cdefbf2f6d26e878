// Addresses: what is taken apart goes together again, and what is appended leaves an address.
#include "Ports/Url.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessivo;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto url = Url::parse(text);
    if (!url)
        return 0;
    if (url->absoluteString() != text || Url::parse(text) != url)
        std::abort();
    for (const Url& built : {url->appendingQueryItem("w", text), url->withQuery(text)}) {
        if (Url::parse(built.absoluteString()) != built)
            std::abort();
    }
    (void)url->lastPathComponent();
    return 0;
}
