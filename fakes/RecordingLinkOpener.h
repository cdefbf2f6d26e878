#pragma once

#include "Ports/LinkOpener.h"

#include <vector>

namespace tessivo::fakes {

/// Remembers what was opened.
class RecordingLinkOpener final : public LinkOpener {
public:
    void open(const std::string& url) override { opened.push_back(url); }

    [[nodiscard]] bool canOpen(const std::string&) const override { return opens; }

    std::vector<std::string> opened;
    bool opens = true; ///< the answer to every question
};

} // namespace tessivo::fakes
