#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

class QQuickWindow;

namespace tessivo::tour {

/// Judges the texts on a screen: whether each comes from the tables of the stage's language, and whether all
/// of it is seen.
class TextInspection {
public:
    /// `language` names the tables, `locale` the words of dates.
    TextInspection(const char* language, const QLocale& locale);

    /// The user has typed it, or a photographer is named so: it may be shown as it is, and cut.
    void allow(const QString& words);

    /// What is wrong with the texts that a window shows; one line each.
    [[nodiscard]] QStringList faultsOf(QQuickWindow& window) const;

private:
    /// Makes `known_` anew from the patterns.
    void compileKnown();
    [[nodiscard]] bool isForeign(const QString& text) const;
    [[nodiscard]] bool isOfTheUser(const QString& text) const;

    QStringList patterns_; ///< of each text that may be shown
    QRegularExpression known_;
    QStringList ofTheUser_;
};

} // namespace tessivo::tour
