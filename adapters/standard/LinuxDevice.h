#pragma once

#include "Ports/Device.h"

#include <filesystem>

namespace tessivo {

/// A Linux machine, as its firmware and its distribution describe it.
class LinuxDevice final : public Device {
public:
    /// `root` is the folder above "proc", "sys" and "etc".
    explicit LinuxDevice(std::filesystem::path root = "/") : root_(std::move(root)) {}

    [[nodiscard]] std::string modelIdentifier() const override;
    [[nodiscard]] std::string systemVersion() const override;
    [[nodiscard]] std::optional<std::string> simulatedModelIdentifier() const override;

private:
    std::filesystem::path root_;
};

} // namespace tessivo
