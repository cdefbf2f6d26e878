#include "SelectValueVC/TableViewCell.h"

namespace tessivo {
namespace {

constexpr double fontSize = 17;
constexpr double markRadius = 10;

} // namespace

TableViewCell::TableViewCell() {
    checkmarkImageView.setCornerRadius(markRadius);
    contentView.addSubview(label);
    contentView.addSubview(checkmarkImageView);
    draw(false);
}

void TableViewCell::setSelected(bool selected) {
    CollectionViewCell::setSelected(false);
    draw(selected);
}

void TableViewCell::draw(bool selected) {
    label.setFont({fontSize, selected ? ui::FontWeight::Medium : ui::FontWeight::Regular});
    checkmarkImageView.setImage(selected ? ui::Image::named("blueCheck") : ui::Image());
    checkmarkImageView.setTint(ui::ColorRef::named(selected ? "button" : "Line"));
    checkmarkImageView.setBackgroundColor(selected ? ui::ColorRef::named("chekBack") : ui::ColorRef::white());
}

} // namespace tessivo
