#include "bridge/TextInputItem.h"

#include <utility>

namespace tessivo::shell {

QString TextInputItem::placeholder() const {
    const auto* field = dynamic_cast<const ui::TextField*>(&input_);
    return field ? QString::fromStdString(field->placeholder()) : QString();
}

void TextInputItem::edit(const QString& text) {
    const std::string wanted = text.toStdString();
    if (wanted != input_.text() && !input_.editTo(wanted))
        Q_EMIT refused();
}

void TextInputItem::followEditing() {
    if (std::exchange(wasEditing_, input_.isEditing()) && !wasEditing_)
        Q_EMIT keyboardDismissed();
}

void TextInputItem::pressReturn() {
    if (auto* field = dynamic_cast<ui::TextField*>(&input_))
        field->pressReturn();
}

} // namespace tessivo::shell
