#pragma once

#include "Interface/CollectionViewCell.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "SettingVC/SettingSection.h"

namespace tessivo {

/// A row of the settings that leads somewhere.
class SettingCell : public ui::CollectionViewCell {
public:
    SettingCell();

    ui::ImageView image{controls, "image"};
    ui::View mainView{controls, "mainView"};
    ui::Label text{controls, "text"};
    ui::ImageView chevronRight{controls, "chevronRight"};

    void configure(const SettingItem& item);
};

/// A row of the settings with the value that it has now.
class SpecialCell final : public SettingCell {
public:
    SpecialCell();

    ui::Label mainText{controls, "mainText"};

    void showValue(const std::string& value);
};

/// Another program in the strip.
class AppCell final : public ui::CollectionViewCell {
public:
    AppCell();

    ui::ImageView image{controls, "image"};
    ui::Label text{controls, "text"};

    void configure(const SettingItem& item);
};

/// The heading of a section.
class SettingHeaderReusableView final : public ui::View {
public:
    /// Registers its label as `name`.
    SettingHeaderReusableView(ui::ControlRegistry& registry, std::string name);

    ui::Label label;
};

} // namespace tessivo
