#pragma once

#include "AddEventVC/Palette.h"
#include "Interface/CollectionViewCell.h"
#include "Interface/ImageView.h"

#include <optional>

namespace tessivo {

/// A round swatch of the background chooser, a colour or a gradient, with a mark where it is the chosen one.
class BackgrounCell final : public ui::CollectionViewCell {
public:
    static constexpr double side = 48;

    BackgrounCell();

    /// The selection mark, over the swatch.
    ui::ImageView premium{controls, "premium"};
    std::optional<GradientItem> gradient;
    std::optional<ColorItem> color;

    void showColor(const ColorItem& item);
    /// A colour that the catalogue lacks stops the program.
    void showGradient(const GradientItem& item, const NamedColors& colors, Console& console);
    void setMarked(bool marked);

    void prepareForReuse() override;
};

} // namespace tessivo
