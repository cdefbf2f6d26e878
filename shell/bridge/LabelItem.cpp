#include "bridge/LabelItem.h"

#include <limits>

namespace tessivo::shell {

bool LabelItem::stacked() const {
    const auto& runs = label_.styledText().runs;
    return runs.size() > 1 && runs.front().text.ends_with('\n');
}

QList<TextPiece> LabelItem::pieces() const {
    QList<TextPiece> pieces;
    for (const auto& run : label_.styledText().runs) {
        QString text = QString::fromStdString(run.text);
        if (stacked() && text.endsWith(u'\n'))
            text.chop(1);
        pieces.push_back(
            {text, run.font.size, static_cast<int>(run.font.weight), context().color(run.color)});
    }
    return pieces;
}

int LabelItem::alignment() const {
    switch (label_.alignment()) {
    case ui::TextAlignment::Natural:
    case ui::TextAlignment::Left:
        return Qt::AlignLeft;
    case ui::TextAlignment::Center:
        return Qt::AlignHCenter;
    case ui::TextAlignment::Right:
        return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

int LabelItem::lineLimit() const {
    return label_.numberOfLines() > 0 ? label_.numberOfLines() : std::numeric_limits<int>::max();
}

QString LabelItem::accessibleName() const {
    const QString own = ViewItem::accessibleName();
    return own.isEmpty() ? text() : own;
}

} // namespace tessivo::shell
