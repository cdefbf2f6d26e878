#include "TextInspection.h"

#include "hand/Hand.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace tessivo::tour {
namespace {

constexpr double rounding = 1; // points

void addTable(const QString& folder, const char* language, QStringList& texts) {
    QFile file(QStringLiteral(":/tessivo/%1/%2.json").arg(folder, QLatin1String(language)));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The texts of %s cannot be opened", language);
    for (const auto& text : QJsonDocument::fromJson(file.readAll()).object())
        texts << text.toString().split(QLatin1Char('|')); // a title of the photo browser has two forms
}

void addWordsOfDates(const QLocale& locale, QStringList& texts) {
    for (int month = 1; month <= 12; ++month)
        texts << locale.monthName(month) << locale.standaloneMonthName(month);
    texts << locale.amText() << locale.pmText();
}

/// A text that the layout has cut, or that stands out of its place.
bool isCut(const QQuickItem& item) {
    return item.property("truncated").toBool() ||
           item.property("contentWidth").toDouble() > item.width() + rounding ||
           item.property("contentHeight").toDouble() > item.height() + rounding;
}

} // namespace

TextInspection::TextInspection(const char* language, const QLocale& locale) {
    QStringList texts{QStringLiteral("Tessivo"), QStringLiteral("Unsplash")};
    for (const auto& folder :
         {QStringLiteral("texts"), QStringLiteral("unsplash-texts"), QStringLiteral("machine-texts")})
        addTable(folder, language, texts);
    addWordsOfDates(locale, texts);
    for (const QString& text : texts)
        patterns_ << QRegularExpression::escape(text.simplified())
                         .replace(QLatin1String("%d"), QLatin1String("\\d+"));
    patterns_.removeAll(QString());
    known_.setPatternOptions(QRegularExpression::UseUnicodePropertiesOption);
    compileKnown();
}

void TextInspection::compileKnown() {
    // Of two texts that begin alike, the longer one is looked for first.
    std::ranges::sort(patterns_, std::ranges::greater{}, [](const QString& text) { return text.size(); });
    known_.setPattern(QStringLiteral("(?<!\\p{L})(%1)(?!\\p{L})").arg(patterns_.join(QLatin1Char('|'))));
}

void TextInspection::allow(const QString& words) {
    if (words.isEmpty())
        return;
    ofTheUser_ << words.simplified();
    patterns_ << QRegularExpression::escape(words.simplified());
    compileKnown();
}

QStringList TextInspection::faultsOf(QQuickWindow& window) const {
    QStringList faults;
    for (const QQuickItem* item : drawnItems(*window.contentItem())) {
        const bool isText = item->inherits("QQuickText");
        const QString shown = isText || item->inherits("QQuickTextEdit")
                                  ? item->property("text").toString().simplified()
                                  : QString();
        const QString name = accessibleName(*item).simplified();
        for (const QString& text : {shown, name}) {
            if (isForeign(text))
                faults << QStringLiteral("A text that no table has: \"%1\"").arg(text);
        }
        if (isText && !shown.isEmpty() && isCut(*item) && !isOfTheUser(shown))
            faults << QStringLiteral("A text that is cut: \"%1\"").arg(shown);
    }
    faults.removeDuplicates();
    return faults;
}

bool TextInspection::isForeign(const QString& text) const {
    QString rest = text;
    rest.remove(known_);
    return std::ranges::any_of(rest, [](QChar character) { return character.isLetter(); });
}

bool TextInspection::isOfTheUser(const QString& text) const {
    return std::ranges::any_of(ofTheUser_, [&](const QString& words) { return text.contains(words); });
}

} // namespace tessivo::tour
