#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

/// A spinner, visible while it spins.
class ActivityIndicator final : public View {
public:
    using View::View;

    [[nodiscard]] bool isAnimating() const { return animating_; }
    void setAnimating(bool animating) {
        animating_ = animating;
        notify(ViewChange::Content);
    }

private:
    bool animating_ = false;
};

} // namespace tessivo::ui
