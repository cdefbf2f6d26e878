#pragma once

#include "Ports/LinkOpener.h"

namespace tessivo {

/// Addresses in the desktop's own programs. Needs a running QGuiApplication.
class QtLinkOpener final : public LinkOpener {
public:
    void open(const std::string& url) override;
    [[nodiscard]] bool canOpen(const std::string& url) const override;
};

} // namespace tessivo
