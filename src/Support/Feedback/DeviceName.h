#pragma once

#include <string>

namespace tessivo {

class Device;

/// The name under which people know the device, for a support mail: that of the table of known models, with
/// "Simulator " before it where the device stands in for another. A model that the table does not know keeps
/// its identifier.
[[nodiscard]] std::string deviceName(const Device& device);

} // namespace tessivo
