#include "bridge/ValueItems.h"

namespace tessivo::shell {
namespace {

QStringList toQStrings(const std::vector<std::string>& texts) {
    QStringList strings;
    for (const auto& text : texts)
        strings.push_back(QString::fromStdString(text));
    return strings;
}

/// The digits of any script as those of ASCII, without leading zeros, and all letters small.
QString folded(const QString& text) {
    QString plain;
    for (const QChar character : text) {
        const QChar digit = character.isDigit() ? QChar(u'0' + character.digitValue()) : character.toLower();
        if (!plain.isEmpty() || digit != u'0')
            plain.push_back(digit);
    }
    return plain;
}

constexpr qint64 longestPause = 1200; ///< ms between two keys of one number or name

} // namespace

QStringList SegmentedItem::titles() const {
    return toQStrings(control_.titles());
}

QString DatePickerItem::wheelName(int wheel) const {
    return QString::fromStdString(picker_.wheelName(static_cast<std::size_t>(wheel)));
}

QStringList DatePickerItem::rows(int wheel) const {
    return toQStrings(picker_.wheel(static_cast<std::size_t>(wheel)).rows);
}

int DatePickerItem::selectedRow(int wheel) const {
    return picker_.wheel(static_cast<std::size_t>(wheel)).selected;
}

int DatePickerItem::rowFor(int wheel, const QString& typed) const {
    const QString wanted = folded(typed);
    const QStringList all = rows(wheel);
    int beginning = -1;
    for (int row = 0; row < all.size(); ++row) {
        const QString text = folded(all[row]);
        if (text == wanted)
            return row;
        if (beginning < 0 && !wanted.isEmpty() && text.startsWith(wanted))
            beginning = row;
    }
    return beginning;
}

bool DatePickerItem::type(int wheel, const QString& characters) {
    if (characters.isEmpty() || !characters.front().isLetterOrNumber())
        return false;
    const bool goesOn = wheel == typedWheel_ && sinceTyped_.isValid() && sinceTyped_.elapsed() < longestPause;
    typed_ = goesOn ? typed_ + characters : characters;
    typedWheel_ = wheel;
    sinceTyped_.start();
    int row = rowFor(wheel, typed_);
    if (row < 0) { // another row is begun
        typed_ = characters;
        row = rowFor(wheel, typed_);
    }
    turn(wheel, row);
    return true;
}

bool DatePickerItem::wraps(int wheel) const {
    return picker_.wheel(static_cast<std::size_t>(wheel)).wraps;
}

} // namespace tessivo::shell
