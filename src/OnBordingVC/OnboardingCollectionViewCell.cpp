#include "OnBordingVC/OnboardingCollectionViewCell.h"

namespace tessivo {

OnboardingCollectionViewCell::OnboardingCollectionViewCell() {
    viewText.setBackgroundColor(ui::ColorRef::white());
    viewText.setCornerRadius(32);
    titleLabel.setFont({26, ui::FontWeight::Bold});
    titleLabel.setAlignment(ui::TextAlignment::Center);
    titleLabel.setNumberOfLines(0);
    imageView.setContentMode(ui::ContentMode::AspectFit);
    viewText.addSubview(titleLabel);
    contentView.addSubview(imageView);
    contentView.addSubview(viewText);
}

void OnboardingCollectionViewCell::configure(const std::string& image, const std::string& text) {
    imageView.setImage(ui::Image::named(image));
    titleLabel.setText(text);
    setAccessibilityName(text);
}

} // namespace tessivo
