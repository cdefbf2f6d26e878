#pragma once

#include "Ports/Error.h"

#include <filesystem>
#include <string>

namespace tessivo::freedesktop {

/// The file of another program of this installation: beside the running program, or, where nothing is
/// installed, in `buildFolder` of the same build. Empty if it is in neither place.
[[nodiscard]] std::filesystem::path siblingProgram(const std::string& name, const std::string& buildFolder);

/// Starts a program that outlives this one. Any thread; returns once it is on its way.
[[nodiscard]] Outcome startDetached(const std::filesystem::path& program);

} // namespace tessivo::freedesktop
