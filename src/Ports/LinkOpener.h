#pragma once

#include <string>

namespace tessivo {

/// The machine's way to show an address outside the program. Main thread.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// Opens `url` in the user's browser or mail program. Addresses other than http, https and mailto are
    /// ignored: a link that came from the network must not start any other program. Failures are not
    /// reported.
    virtual void open(const std::string& url) = 0;

    /// Whether `url` is an address that `open` hands on: http, https or mailto, and a program's page in the
    /// software centre (appstream) where there is one.
    [[nodiscard]] virtual bool canOpen(const std::string& url) const = 0;
};

} // namespace tessivo
