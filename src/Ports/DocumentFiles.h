#pragma once

#include "Ports/Error.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// The program's own files, in one folder without subfolders. A name that is empty, a dot name, too long, or
/// holds a slash or a zero byte names no file: nothing outside the folder can be reached. Main thread.
class DocumentFiles {
public:
    virtual ~DocumentFiles() = default;

    /// Writes `data` as the whole file `name` and gives its path. A failure, a bad name included, leaves a
    /// former file as it was.
    [[nodiscard]] virtual Result<std::string> write(std::string_view name, std::string_view data) = 0;

    /// The file's content; empty where there is no such file or it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> read(std::string_view name) const = 0;

    /// Whether something lies at `path`, which need not be in the folder.
    [[nodiscard]] virtual bool fileExists(std::string_view path) const = 0;
};

} // namespace tessivo
