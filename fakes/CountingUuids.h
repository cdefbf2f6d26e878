#pragma once

#include "Ports/Uuid.h"

namespace tessivo::fakes {

/// Identifiers in sequence: the first ends in 01, the next in 02.
class CountingUuids final : public UuidSource {
public:
    Uuid random() override {
        Uuid uuid;
        uuid.bytes.back() = ++last_;
        return uuid;
    }

private:
    std::uint8_t last_ = 0;
};

} // namespace tessivo::fakes
