#include "bridge/LooseViewItem.h"

namespace tessivo::shell {

LooseViewItem::LooseViewItem(ui::View& view, const BridgeContext& context, QObject* parent)
    : ViewItem(view, context, parent), view_(view), button_(dynamic_cast<ui::Button*>(&view)) {
    for (ui::View* subview : view.subviews())
        children_.push_back(new LooseViewItem(*subview, context, this));
}

QString LooseViewItem::image() const {
    return button_ ? QString::fromStdString(button_->imageName()) : QString();
}

QString LooseViewItem::title() const {
    return button_ ? QString::fromStdString(button_->title()) : QString();
}

void LooseViewItem::activate() {
    if (button_)
        button_->tap();
}

} // namespace tessivo::shell
