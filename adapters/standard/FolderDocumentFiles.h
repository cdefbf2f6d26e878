#pragma once

#include "Ports/DocumentFiles.h"

#include <filesystem>

namespace tessivo {

/// Files in one folder of the disk, for this user's eyes only.
class FolderDocumentFiles final : public DocumentFiles {
public:
    /// `folder` is made when the first file is written.
    explicit FolderDocumentFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    Result<std::string> write(std::string_view name, std::string_view data) override;
    std::optional<std::string> read(std::string_view name) const override;
    bool fileExists(std::string_view path) const override;

private:
    std::filesystem::path folder_;
};

} // namespace tessivo
