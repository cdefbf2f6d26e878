#include "icu/IcuTextCounting.h"

#include "icu/IcuRequire.h"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace tessivo {
namespace {

constexpr UChar32 replacement = 0xFFFD;

// The macro narrows integers by design.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
/// The character at `at`, which is moved behind it; negative for invalid bytes.
UChar32 next(const char* text, std::int32_t& at, std::int32_t length) {
    UChar32 character = 0;
    U8_NEXT(text, at, length, character);
    return character;
}
#pragma GCC diagnostic pop

/// ICU's own conversion makes one replacement of several bad bytes; here each stands for itself.
icu::UnicodeString decoded(std::string_view text) {
    icu::UnicodeString result;
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < length;) {
        const std::int32_t start = at;
        const UChar32 character = next(text.data(), at, length);
        if (character >= 0) {
            result.append(character);
            continue;
        }
        for (std::int32_t bad = start; bad < at; ++bad)
            result.append(replacement);
    }
    return result;
}

} // namespace

IcuTextCounting::IcuTextCounting() {
    UErrorCode status = U_ZERO_ERROR;
    clusters_.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    icu_adapter::require(status, "character boundaries");
}

std::size_t IcuTextCounting::characters(std::string_view text) const {
    const icu::UnicodeString letters = decoded(text);
    const std::unique_ptr<icu::BreakIterator> clusters(clusters_->clone());
    clusters->setText(letters);
    std::size_t count = 0;
    while (clusters->next() != icu::BreakIterator::DONE)
        ++count;
    return count;
}

} // namespace tessivo
