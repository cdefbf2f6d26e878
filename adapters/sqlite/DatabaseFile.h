#pragma once

#include "Ports/Error.h"

#include <sys/types.h>

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo::sqlite {

/// The size in bytes; 0 for a file that is not there.
[[nodiscard]] std::uintmax_t sizeOf(const std::filesystem::path& file);

/// Makes missing folders (mode 0700), and checks that `file` is a plain file or none, and can be written in a
/// folder that can: SQLite by itself would open what it cannot write for reading.
[[nodiscard]] Outcome expectWritable(const std::filesystem::path& file);

/// Puts `content` on disk as the file (mode 0600) in one step: at no moment is there a part of it. An empty
/// file is replaced; one with content, which another process has made meanwhile, stays.
[[nodiscard]] Outcome publish(const std::filesystem::path& file, std::string_view content);

/// The first of "<start>1", "<start>2" and so on that no file has.
[[nodiscard]] std::filesystem::path freeName(const std::string& start);

/// Renames the file to the first free name of the form "<file>.left-1".
[[nodiscard]] Outcome setAside(const std::filesystem::path& file);

/// Which file a name stands for, and when it was last written.
struct FileState {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::timespec modified{};

    [[nodiscard]] bool isSameFile(const FileState& other) const {
        return device == other.device && inode == other.inode;
    }
    [[nodiscard]] bool isUntouched(const FileState& other) const {
        return isSameFile(other) && size == other.size && modified.tv_sec == other.modified.tv_sec &&
               modified.tv_nsec == other.modified.tv_nsec;
    }
};

/// Empty where there is no such file.
[[nodiscard]] std::optional<FileState> stateOf(const std::filesystem::path& file);

} // namespace tessivo::sqlite
