#pragma once

#include "Ports/LinkOpener.h"

#include <vector>

namespace tessivo::fakes {

/// Remembers what was opened.
class RecordingLinkOpener final : public LinkOpener {
public:
    void open(const std::string& url) override { opened.push_back(url); }

    std::vector<std::string> opened;
};

} // namespace tessivo::fakes
