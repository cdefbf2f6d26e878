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
constexpr mode_t lent = 0600;
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

Result<fs::path> writeNew(const fs::path& folder, std::string_view bytes, mode_t mode) {
    int file = -1;
    fs::path path;
    for (int number = 1; file < 0; ++number) {
        path = folder / (number == 1 ? "Tessivo.png" : "Tessivo " + std::to_string(number) + ".png");
        file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (file < 0 && errno != EEXIST && errno != EINTR)
            return failure(path, errno);
    }
    int code = writeAll(file, bytes);
    if (::close(file) != 0 && code == 0)
        code = errno;
    if (code == 0)
        return path;
    ::unlink(path.c_str());
    return failure(path, code);
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
    std::error_code code;
    fs::create_directories(folder, code);
    if (!code)
        fs::permissions(folder, fs::perms::owner_all, code);
    if (code)
        return failure(folder, code.value());
    forgetOld(folder);
    return writeNew(folder, bytes, lent);
}

} // namespace tessivo::desktop
