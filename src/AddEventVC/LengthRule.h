#pragma once

#include "Interface/Label.h"
#include "Interface/TextInput.h"

#include <optional>
#include <string>

namespace tessivo {

class TextCounting;

/// The limit of a text that the user types, in user-perceived characters, and the label that counts them:
/// "Title (7/20)".
class LengthRule final {
public:
    /// `words` stand before the count, with the bracket that opens it. Counting and label outlive the rule.
    LengthRule(std::string words, int limit, const TextCounting& counting, ui::Label& counter)
        : words_(std::move(words)), limit_(limit), counting_(counting), counter_(counter) {}

    /// What the edit would leave in `input`; shows its count on the label. Empty where it would be too long:
    /// the whole edit is to be refused, and the label stays.
    [[nodiscard]] std::optional<std::string> accept(const ui::TextInput& input, ui::TextRange range,
                                                    const std::string& replacement);
    /// Counts a text that is there already.
    void show(const std::string& text);

private:
    void show(std::size_t count);

    std::string words_;
    int limit_;
    const TextCounting& counting_;
    ui::Label& counter_;
};

} // namespace tessivo
