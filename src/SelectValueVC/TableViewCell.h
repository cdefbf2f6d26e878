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

    /// The mark tells the selection; the platform's own highlight never shows.
    void setSelected(bool selected) override;

private:
    void draw(bool selected);
};

} // namespace tessivo
