#include "sqlite/DatabaseFile.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace tessivo::sqlite {
namespace {

namespace fs = std::filesystem;

Error systemFailure(const std::string& what, const fs::path& path) {
    const int code = errno == ENOSPC || errno == EDQUOT ? SQLITE_FULL : SQLITE_CANTOPEN;
    return {"SQLite", code, what + " \"" + path.string() + "\": " + std::strerror(errno)};
}

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

Outcome makeFolders(const fs::path& folder) {
    std::error_code ignored;
    if (folder.empty() || fs::is_directory(folder, ignored))
        return std::nullopt;
    if (auto error = makeFolders(folder.parent_path()))
        return error;
    const bool made = ::mkdir(folder.c_str(), S_IRWXU) == 0;
    if (made || (errno == EEXIST && fs::is_directory(folder, ignored)))
        return std::nullopt;
    return systemFailure("Cannot make the folder", folder);
}

bool writeWhole(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno != EINTR)
            return false;
        content.remove_prefix(static_cast<std::size_t>(written > 0 ? written : 0));
    }
    return ::fsync(descriptor) == 0;
}

/// Gives a finished file its name.
bool rename(const std::string& finished, const fs::path& file) {
    if (sizeOf(file) == 0 && fs::exists(file))
        return ::rename(finished.c_str(), file.c_str()) == 0;
    if (::renameat2(AT_FDCWD, finished.c_str(), AT_FDCWD, file.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    const bool unknownToFileSystem = errno == EINVAL || errno == ENOSYS;
    return unknownToFileSystem && ::link(finished.c_str(), file.c_str()) == 0 &&
           ::unlink(finished.c_str()) == 0;
}

/// A new name survives a loss of power only with its folder.
void syncFolder(const fs::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

std::uintmax_t sizeOf(const fs::path& file) {
    std::error_code error;
    const auto size = fs::file_size(file, error);
    return error ? 0 : size;
}

Outcome expectWritable(const fs::path& file) {
    const auto folder = folderOf(file);
    if (auto error = makeFolders(folder))
        return error;
    if (::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        return systemFailure("Cannot write to the folder", folder);
    std::error_code error;
    const auto status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        return std::nullopt;
    if (!fs::is_regular_file(status))
        return Error{"SQLite", SQLITE_CANTOPEN, "\"" + file.string() + "\" is no file"};
    if (::faccessat(AT_FDCWD, file.c_str(), R_OK | W_OK, AT_EACCESS) != 0)
        return systemFailure("Cannot write the file", file);
    return std::nullopt;
}

Outcome publish(const fs::path& file, std::string_view content) {
    std::string unfinished = file.string() + ".XXXXXX";
    const int descriptor = ::mkostemp(unfinished.data(), O_CLOEXEC);
    if (descriptor < 0)
        return systemFailure("Cannot make the file", file);
    Outcome outcome;
    if (!writeWhole(descriptor, content))
        outcome = systemFailure("Cannot make the file", file);
    ::close(descriptor);
    if (!outcome && rename(unfinished, file)) {
        syncFolder(folderOf(file));
        return std::nullopt;
    }
    if (!outcome && errno != EEXIST)
        outcome = systemFailure("Cannot make the file", file);
    ::unlink(unfinished.c_str());
    return outcome;
}

fs::path freeName(const std::string& start) {
    int number = 1;
    while (fs::exists(start + std::to_string(number)))
        ++number;
    return start + std::to_string(number);
}

Outcome setAside(const fs::path& file) {
    const auto aside = freeName(file.string() + ".left-");
    if (::rename(file.c_str(), aside.c_str()) != 0)
        return systemFailure("Cannot set aside the file", file);
    return std::nullopt;
}

std::optional<FileState> stateOf(const fs::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return std::nullopt;
    return FileState{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

} // namespace tessivo::sqlite
