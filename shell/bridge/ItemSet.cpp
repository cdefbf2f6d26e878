#include "bridge/ItemSet.h"

#include "Ports/Console.h"
#include "bridge/ButtonItem.h"
#include "bridge/CollectionItem.h"
#include "bridge/LabelItem.h"
#include "bridge/ScrollItem.h"
#include "bridge/TextInputItem.h"
#include "bridge/ValueItems.h"

namespace tessivo::shell {

ViewItem* ItemSet::control(const QString& name) {
    if (const auto found = made_.find(name); found != made_.end())
        return found->second;
    ui::View* view = controls_.find(name.toStdString());
    if (!view)
        context_.console.stopProgram("There is no control named " + name.toStdString() + ".");
    ViewItem* item = make(*view);
    item->controlName = name;
    made_.emplace(name, item);
    return item;
}

ViewItem* ItemSet::make(ui::View& view) const {
    if (auto* label = dynamic_cast<ui::Label*>(&view))
        return new LabelItem(*label, context_, owner_);
    if (auto* button = dynamic_cast<ui::Button*>(&view))
        return new ButtonItem(*button, context_, owner_);
    if (auto* input = dynamic_cast<ui::TextInput*>(&view))
        return new TextInputItem(*input, context_, owner_);
    if (auto* toggle = dynamic_cast<ui::Switch*>(&view))
        return new SwitchItem(*toggle, context_, owner_);
    if (auto* segments = dynamic_cast<ui::SegmentedControl*>(&view))
        return new SegmentedItem(*segments, context_, owner_);
    if (auto* picker = dynamic_cast<ui::DatePicker*>(&view))
        return new DatePickerItem(*picker, context_, owner_);
    if (auto* image = dynamic_cast<ui::ImageView*>(&view))
        return new ImageItem(*image, context_, owner_);
    if (auto* spinner = dynamic_cast<ui::ActivityIndicator*>(&view))
        return new ActivityItem(*spinner, context_, owner_);
    if (auto* collection = dynamic_cast<ui::CollectionView*>(&view))
        return new CollectionItem(*collection, context_, owner_);
    if (auto* scroll = dynamic_cast<ui::ScrollView*>(&view))
        return new ScrollItem(*scroll, context_, owner_);
    return new ViewItem(view, context_, owner_);
}

} // namespace tessivo::shell
