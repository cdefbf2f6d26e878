#pragma once

#include "Interface/CollectionViewCell.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"

namespace tessivo {

/// A slide of the tour: a picture, and a sentence on a ground of its own.
class OnboardingCollectionViewCell final : public ui::CollectionViewCell {
public:
    OnboardingCollectionViewCell();

    ui::View viewText{controls, "viewText"};
    ui::Label titleLabel{controls, "titleLabel"};
    ui::ImageView imageView{controls, "imageView"};

    void configure(const std::string& image, const std::string& text);
};

} // namespace tessivo
