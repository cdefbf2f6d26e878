#pragma once

#include "Interface/CollectionViewCell.h"
#include "UnsplashPicker/PhotoView.h"

namespace tessivo::unsplash {

/// The mark of a chosen photo.
class CheckmarkView final : public ui::View {
public:
    explicit CheckmarkView(ui::ControlRegistry& controls);

    ui::ImageView imageView;

protected:
    void layoutSubviews() override;
};

/// One photo of the grid.
class PhotoCell final : public ui::CollectionViewCell {
public:
    static constexpr auto reuseIdentifier = "PhotoCell";

    PhotoCell(PickerServices& services, ui::WindowContext& window);

    PhotoView photoView;
    CheckmarkView checkmarkView{controls};

    void prepareForReuse() override;
    void willLeaveWindow() override { photoView.willLeaveScreen(); }
    void setSelected(bool selected) override;

protected:
    void layoutSubviews() override;
};

} // namespace tessivo::unsplash
