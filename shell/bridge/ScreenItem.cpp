#include "bridge/ScreenItem.h"

namespace tessivo::shell {

ScreenItem* ScreenItem::make(std::shared_ptr<ui::ViewController> screen, const BridgeContext& context,
                             QObject* parent) {
    if (auto alert = std::dynamic_pointer_cast<ui::AlertController>(screen))
        return new AlertItem(std::move(alert), context, parent);
    if (auto tabs = std::dynamic_pointer_cast<ui::TabBarController>(screen))
        return new TabsItem(std::move(tabs), context, parent);
    if (auto frame = std::dynamic_pointer_cast<ui::NavigationController>(screen))
        return new NavigationItem(std::move(frame), context, parent);
    return new ScreenItem(std::move(screen), context, parent);
}

ScreenItem::ScreenItem(std::shared_ptr<ui::ViewController> screen, const BridgeContext& context,
                       QObject* parent)
    : QObject(parent),
      screen_(std::move(screen)),
      context_(context),
      controls_(screen_->controls, context, this),
      insetChanges_(screen_->onBottomInsetChange([this] { Q_EMIT bottomInsetChanged(); })) {}

ScreenItem::Kind ScreenItem::kind() const {
    switch (screen_->modalPresentationStyle) {
    case ui::PresentationStyle::FullScreen:
    case ui::PresentationStyle::Custom:
        return Kind::Full;
    case ui::PresentationStyle::Sheet:
        return Kind::Sheet;
    case ui::PresentationStyle::Alert:
        return Kind::Alert;
    case ui::PresentationStyle::ActionSheet:
        return Kind::ActionSheet;
    }
    return Kind::Full;
}

QList<AlertChoice> AlertItem::choices() const {
    QList<AlertChoice> choices;
    for (const auto& action : alert_.actions())
        choices.push_back({QString::fromStdString(action.title),
                           action.style == ui::AlertActionStyle::Destructive,
                           action.style == ui::AlertActionStyle::Cancel});
    return choices;
}

TabsItem::TabsItem(std::shared_ptr<ui::TabBarController> tabs, const BridgeContext& context, QObject* parent)
    : ScreenItem(tabs, context, parent),
      tabs_(*tabs),
      tabChanges_(tabs_.onTabsChange([this] { follow(); })),
      barChanges_(tabs_.tabBar.onChange([this](ui::ViewChange) { Q_EMIT entriesChanged(); })) {
    follow();
}

void TabsItem::follow() {
    auto* shown = tabs_.selectedViewController();
    if (!selected_ || &selected_->screen() != shown) {
        if (selected_)
            selected_->deleteLater();
        selected_ = shown ? ScreenItem::make(shown->shared_from_this(), context(), this) : nullptr;
    }
    Q_EMIT selectionChanged();
}

QList<TabEntry> TabsItem::entries() const {
    QList<TabEntry> entries;
    for (const auto& item : tabs_.tabBar.items())
        entries.push_back({QString::fromStdString(item.title), QString::fromStdString(item.imageName),
                           QString::fromStdString(item.selectedImageName), context().color(item.titleColor),
                           context().color(item.selectedTitleColor)});
    return entries;
}

} // namespace tessivo::shell
