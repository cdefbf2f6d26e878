#include "support/Resources.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tessivo {

std::filesystem::path resourcesFolder() {
    return TESSIVO_RESOURCES;
}

std::string resource(const std::string& name) {
    std::ifstream file(resourcesFolder() / name, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot open " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace tessivo
