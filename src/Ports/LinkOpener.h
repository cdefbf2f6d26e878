#pragma once

#include <string>

namespace tessivo {

/// The machine's way to show an address outside the program. Main thread.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// Opens `url` in the user's browser or whatever is set for it. Nobody hears how that went.
    virtual void open(const std::string& url) = 0;
};

} // namespace tessivo
