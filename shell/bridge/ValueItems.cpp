#include "bridge/ValueItems.h"

namespace tessivo::shell {
namespace {

QStringList toQStrings(const std::vector<std::string>& texts) {
    QStringList strings;
    for (const auto& text : texts)
        strings.push_back(QString::fromStdString(text));
    return strings;
}

} // namespace

QStringList SegmentedItem::titles() const {
    return toQStrings(control_.titles());
}

QStringList DatePickerItem::rows(int wheel) const {
    return toQStrings(picker_.wheel(static_cast<std::size_t>(wheel)).rows);
}

int DatePickerItem::selectedRow(int wheel) const {
    return picker_.wheel(static_cast<std::size_t>(wheel)).selected;
}

bool DatePickerItem::wraps(int wheel) const {
    return picker_.wheel(static_cast<std::size_t>(wheel)).wraps;
}

} // namespace tessivo::shell
