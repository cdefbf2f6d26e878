#pragma once

#include "Interface/ActivityIndicator.h"
#include "Interface/ControlRegistry.h"

namespace tessivo::unsplash {

/// The foot of the photo grid.
class PagingView final : public ui::View {
public:
    explicit PagingView(ui::ControlRegistry& controls)
        : View(controls, "pagingView"), spinner(controls, "pagingSpinner") {
        addSubview(spinner);
    }

    ui::ActivityIndicator spinner;

    [[nodiscard]] bool isLoading() const { return spinner.isAnimating(); }
    void setLoading(bool loading) { spinner.setAnimating(loading); }

protected:
    void layoutSubviews() override { spinner.setFrame({0, 0, bounds().width, bounds().height}); }
};

} // namespace tessivo::unsplash
