#pragma once

#include "Ports/Uuid.h"

#include <random>

namespace tessivo {

/// Identifiers from the machine's source of randomness.
class RandomUuids final : public UuidSource {
public:
    Uuid random() override;

private:
    std::random_device device_;
};

} // namespace tessivo
