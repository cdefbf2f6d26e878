#include "SettingVC/SettingCells.h"

namespace tessivo {
namespace {

constexpr double rowRadius = 14;
constexpr double iconRadius = 8;
constexpr double tileRadius = 14;

} // namespace

SettingCell::SettingCell() {
    mainView.setBackgroundColor(ui::ColorRef::white());
    mainView.setCornerRadius(rowRadius);
    image.setCornerRadius(iconRadius);
    image.setTint(ui::ColorRef::white());
    text.setFont({17, ui::FontWeight::Regular});
    chevronRight.setImage(ui::Image::named("chevronNext"));
    chevronRight.setTint(ui::ColorRef::named("disabled"));
    contentView.addSubview(mainView);
    for (ui::View* part : std::initializer_list<ui::View*>{&image, &text, &chevronRight})
        mainView.addSubview(*part);
}

void SettingCell::configure(const SettingItem& item) {
    image.setImage(ui::Image::named(item.image.value_or("")));
    image.setBackgroundColor(ui::ColorRef::named(item.color.value_or("")));
    text.setText(item.title);
    setAccessibilityName(item.title);
}

SpecialCell::SpecialCell() {
    mainText.setFont({17, ui::FontWeight::Regular});
    mainText.setTextColor(ui::ColorRef::named("disabled"));
    mainView.addSubview(mainText);
}

void SpecialCell::showValue(const std::string& value) {
    mainText.setText(value);
    setAccessibilityName(text.text() + ", " + value);
}

AppCell::AppCell() {
    image.setCornerRadius(tileRadius);
    text.setNumberOfLines(2);
    contentView.addSubview(image);
    contentView.addSubview(text);
}

void AppCell::configure(const SettingItem& item) {
    const std::string subTitle = item.subTitle.value_or("");
    image.setImage(ui::Image::named(item.image.value_or("")));
    text.setStyledText({{{item.title + "\n", {17, ui::FontWeight::Semibold}, ui::ColorRef::black()},
                         {subTitle, {14, ui::FontWeight::Regular}, ui::ColorRef::named("disabled")}}});
    setAccessibilityName(item.title + ", " + subTitle);
}

SettingHeaderReusableView::SettingHeaderReusableView(ui::ControlRegistry& registry, std::string name)
    : label(registry, std::move(name)) {
    label.setFont({14, ui::FontWeight::Semibold});
    label.setTextColor(ui::ColorRef::named("disabled"));
    addSubview(label);
}

} // namespace tessivo
