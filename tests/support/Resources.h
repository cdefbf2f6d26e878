#pragma once

#include <filesystem>
#include <string>

namespace tessivo {

/// The folder of the texts, colours and icons that the program ships.
[[nodiscard]] std::filesystem::path resourcesFolder();

/// The contents of a file of that folder, such as "texts/en.json"; throws for one that cannot be opened.
[[nodiscard]] std::string resource(const std::string& name);

} // namespace tessivo
