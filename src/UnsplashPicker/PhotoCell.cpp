#include "UnsplashPicker/PhotoCell.h"

namespace tessivo::unsplash {
namespace {

constexpr double checkmarkSide = 24;
constexpr double checkmarkInset = 8;

} // namespace

CheckmarkView::CheckmarkView(ui::ControlRegistry& controls)
    : View(controls, "checkmarkView"), imageView(controls, "checkmark") {
    imageView.setImage(ui::Image::named("checkmark"));
    imageView.setTint(ui::ColorRef::named("button"));
    setBackgroundColor(ui::ColorRef::white());
    setCornerRadius(checkmarkSide / 2);
    addSubview(imageView);
}

void CheckmarkView::layoutSubviews() {
    imageView.setFrame({0, 0, bounds().width, bounds().height});
}

PhotoCell::PhotoCell(PickerServices& services, ui::WindowContext& window)
    : photoView(controls, services, window) {
    contentView.addSubview(photoView);
    contentView.addSubview(checkmarkView);
    PhotoCell::setSelected(false);
}

void PhotoCell::prepareForReuse() {
    CollectionViewCell::prepareForReuse();
    photoView.prepareForReuse();
}

void PhotoCell::setSelected(bool selected) {
    CollectionViewCell::setSelected(selected);
    photoView.setAlpha(selected ? 0.7 : 1);
    checkmarkView.setAlpha(selected ? 1 : 0);
}

void PhotoCell::layoutSubviews() {
    CollectionViewCell::layoutSubviews();
    photoView.setFrame({0, 0, bounds().width, bounds().height});
    checkmarkView.setFrame({bounds().width - checkmarkSide - checkmarkInset,
                            bounds().height - checkmarkSide - checkmarkInset, checkmarkSide, checkmarkSide});
}

} // namespace tessivo::unsplash
