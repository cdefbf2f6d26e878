#pragma once

#include "Interface/CollectionViewCell.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"

namespace tessivo {

/// A row of the value picker: its text, and a round mark at its end that is filled while the row is selected.
class TableViewCell final : public ui::CollectionViewCell {
public:
    TableViewCell();

    ui::Label label{controls, "label"};
    ui::ImageView checkmarkImageView{controls, "checkmarkImageView"};

    /// Shows the selection by the mark and the font. `isSelected` stays false, so that no highlight shows.
    void setSelected(bool selected) override;

private:
    void draw(bool selected);
};

} // namespace tessivo
