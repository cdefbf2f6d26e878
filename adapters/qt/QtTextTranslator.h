#pragma once

#include <QTranslator>

namespace tessivo {

class LocalizedTexts;

/// Gives the window's own texts, which its drawing marks with qsTr, their places in the program's text
/// tables. In force from its construction to its end, on the main thread of a running Qt application.
class QtTextTranslator final : public QTranslator {
public:
    /// `texts` outlives it.
    explicit QtTextTranslator(const LocalizedTexts& texts);

    [[nodiscard]] bool isEmpty() const override { return false; }
    /// The text of the table under `source`; `source` itself where there is none.
    [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                    int count) const override;

private:
    const LocalizedTexts& texts_;
};

} // namespace tessivo
