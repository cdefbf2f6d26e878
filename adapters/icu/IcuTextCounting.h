#pragma once

#include "Ports/TextCounting.h"

#include <unicode/brkiter.h>

#include <memory>

namespace tessivo {

/// Counts extended grapheme clusters.
class IcuTextCounting final : public TextCounting {
public:
    IcuTextCounting();

    std::size_t characters(std::string_view text) const override;

private:
    std::unique_ptr<const icu::BreakIterator>
        clusters_; ///< copied for each count, so that threads do not meet
};

} // namespace tessivo
