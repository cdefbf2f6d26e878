#pragma once

#include "Ports/Error.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tessivo::desktop {

/// Writes `bytes` as "Tessivo.png" in `folder`, which is made where it is missing, or as "Tessivo 2.png" and
/// so on where that is taken: no file is replaced, not even one that comes up at the same time. Returns its
/// path; a file that could not be written whole is removed again. Any thread.
Result<std::filesystem::path> keepPicture(const std::filesystem::path& folder, std::string_view bytes);

/// The same with access for this user only, for another program to read. Files lent more than a day ago are
/// deleted.
Result<std::filesystem::path> lendPicture(const std::filesystem::path& folder, std::string_view bytes);

/// Writes `bytes` as the new file `name` of `folder`, both for the user alone; it is on the disk when this
/// returns. A name that is taken is an error.
Result<std::filesystem::path> keepPrivately(const std::filesystem::path& folder, const std::string& name,
                                            std::string_view bytes);

} // namespace tessivo::desktop
