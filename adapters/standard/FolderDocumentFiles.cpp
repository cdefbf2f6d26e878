#include "standard/FolderDocumentFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <system_error>

namespace tessivo {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestName = 250;

bool isFileName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.size() <= longestName &&
           name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

Error writeError(const std::error_code& code) {
    return {"Files", code.value(), "The file could not be written: " + code.message()};
}

/// Waits until the file or folder is on the disk.
bool sync(const fs::path& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isOnDisk = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return isOnDisk;
}

} // namespace

Result<std::string> FolderDocumentFiles::write(std::string_view name, std::string_view data) {
    if (!isFileName(name))
        return Error{"Files", 0, "The name is none of a file: \"" + std::string(name) + "\""};
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error)
        return writeError(error);
    fs::permissions(folder_, fs::perms::owner_all, error);
    const fs::path path = folder_ / name;
    const fs::path unfinished =
        folder_.string() + ".unfinished"; // beside the folder, where no document can be named so
    std::ofstream file(unfinished, std::ios::binary | std::ios::trunc);
    fs::permissions(unfinished, fs::perms::owner_read | fs::perms::owner_write, error);
    file.write(data.data(), static_cast<std::streamsize>(data.size()));
    file.close();
    // Without this a loss of power could leave the name with an empty file, and an event that refers to it.
    if (!file || !sync(unfinished)) {
        fs::remove(unfinished, error);
        return writeError(std::make_error_code(std::errc::io_error));
    }
    // A file in use is replaced in one step: its former content or the new one, never half.
    fs::rename(unfinished, path, error);
    if (error) {
        std::error_code ignored;
        fs::remove(unfinished, ignored);
        return writeError(error);
    }
    sync(folder_);
    return path.string();
}

std::optional<std::string> FolderDocumentFiles::read(std::string_view name) const {
    if (!isFileName(name))
        return std::nullopt;
    std::error_code ignored;
    const fs::path path = folder_ / name;
    std::ifstream file(path, std::ios::binary);
    if (!fs::is_regular_file(path, ignored) || !file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool FolderDocumentFiles::fileExists(std::string_view path) const {
    std::error_code ignored;
    return path.find('\0') == std::string_view::npos && fs::exists(fs::path(path), ignored);
}

} // namespace tessivo
