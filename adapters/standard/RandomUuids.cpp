#include "standard/RandomUuids.h"

namespace tessivo {

Uuid RandomUuids::random() {
    Uuid uuid;
    for (std::size_t index = 0; index < uuid.bytes.size(); index += sizeof(std::uint32_t)) {
        const std::uint32_t word = device_();
        for (std::size_t byte = 0; byte < sizeof word; ++byte)
            uuid.bytes[index + byte] = static_cast<std::uint8_t>(word >> 8 * byte);
    }
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40); // version 4
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80); // variant 1
    return uuid;
}

} // namespace tessivo
