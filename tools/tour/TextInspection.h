#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

class QQuickWindow;

namespace tessivo::tour {

/// Checks the texts on a screen: whether each comes from the tables of the stage's language, and whether it
/// is shown whole.
class TextInspection {
public:
    /// `language` names the tables, `locale` the words of dates.
    TextInspection(const char* language, const QLocale& locale);

    /// Allows a text that the user has typed, or the name of a photographer: it may appear as it is, and be
    /// cut.
    void allow(const QString& words);

    /// What is wrong with the texts that a window shows; one line each.
    [[nodiscard]] QStringList faultsOf(QQuickWindow& window) const;

private:
    /// Rebuilds `known_` from the patterns.
    void compileKnown();
    [[nodiscard]] bool isForeign(const QString& text) const;
    [[nodiscard]] bool isOfTheUser(const QString& text) const;

    QStringList patterns_; ///< of each text that may be shown
    QRegularExpression known_;
    QStringList ofTheUser_;
};

} // namespace tessivo::tour
