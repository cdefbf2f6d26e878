#pragma once

#include "Interface/CollectionLayout.h"

namespace tessivo {

/// A strip that runs sideways, two items high: down a column first, then on to the next.
class ApplicationsLayout final : public ui::CollectionLayout {
public:
    static constexpr int rows = 2;

    void prepare(int count, ui::Size itemSize, ui::Size bounds) override;
    [[nodiscard]] ui::Size contentSize() const override;
    [[nodiscard]] ui::Rect frame(int item) const override;
    [[nodiscard]] ui::ItemRange itemsIn(const ui::Rect& visible) const override;

private:
    int count_ = 0;
    ui::Size itemSize_;
};

} // namespace tessivo
