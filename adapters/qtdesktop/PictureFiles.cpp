#include "qtdesktop/PictureFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <system_error>

namespace tessivo::desktop {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kept = 0666; ///< as the user's mask allows
constexpr mode_t privately = 0600;
constexpr auto lendingTime = std::chrono::hours(24);

Error failure(const fs::path& path, int code) {
    return {"PictureSharing", code,
            "“" + path.string() + "” cannot be written: " + std::generic_category().message(code) + "."};
}

/// 0, or the error number.
int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return errno;
        bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return 0;
}

/// Opens the new file `path`; -1 where that fails, with `errno` set.
int makeFile(const fs::path& path, mode_t mode) {
    int file = -1;
    do {
        file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    } while (file < 0 && errno == EINTR);
    return file;
}

/// Writes the open new file `path` to the disk, and closes it.
Result<fs::path> filled(int file, const fs::path& path, std::string_view bytes) {
    int code = writeAll(file, bytes);
    if (code == 0 && ::fsync(file) != 0)
        code = errno;
    if (::close(file) != 0 && code == 0)
        code = errno;
    if (code == 0)
        return path;
    ::unlink(path.c_str());
    return failure(path, code);
}

Result<fs::path> writeNew(const fs::path& folder, std::string_view bytes, mode_t mode) {
    for (int number = 1;; ++number) {
        const fs::path path =
            folder / (number == 1 ? "Tessivo.png" : "Tessivo " + std::to_string(number) + ".png");
        if (const int file = makeFile(path, mode); file >= 0)
            return filled(file, path, bytes);
        if (errno != EEXIST)
            return failure(path, errno);
    }
}

/// Makes a folder for the user alone.
std::error_code makePrivate(const fs::path& folder) {
    std::error_code code;
    fs::create_directories(folder, code);
    if (!code)
        fs::permissions(folder, fs::perms::owner_all, code);
    return code;
}

void forgetOld(const fs::path& folder) {
    std::error_code ignored;
    const auto now = fs::file_time_type::clock::now();
    for (fs::directory_iterator entry(folder, ignored); !ignored && entry != fs::directory_iterator();
         entry.increment(ignored)) {
        std::error_code unreadable;
        const auto written = entry->last_write_time(unreadable);
        if (!unreadable && now - written > lendingTime)
            fs::remove(entry->path(), unreadable);
    }
}

} // namespace

Result<fs::path> keepPicture(const fs::path& folder, std::string_view bytes) {
    std::error_code code;
    fs::create_directories(folder, code);
    if (code)
        return failure(folder, code.value());
    return writeNew(folder, bytes, kept);
}

Result<fs::path> lendPicture(const fs::path& folder, std::string_view bytes) {
    if (const auto code = makePrivate(folder))
        return failure(folder, code.value());
    forgetOld(folder);
    return writeNew(folder, bytes, privately);
}

Result<fs::path> keepPrivately(const fs::path& folder, const std::string& name, std::string_view bytes) {
    if (const auto code = makePrivate(folder))
        return failure(folder, code.value());
    const fs::path path = folder / name;
    const int file = makeFile(path, privately);
    return file < 0 ? failure(path, errno) : filled(file, path, bytes);
}

} // namespace tessivo::desktop
