#pragma once

#include "Interface/PresentationStack.h"
#include "Ports/ReviewRequests.h"

#include <functional>
#include <string>

namespace tessivo {

class LinkOpener;
class LocalizedTexts;

/// Asks for a review where the machine has no way of its own: a small sheet over what stands on the screen,
/// which leads to the program's page in the software centre or, where there is none, in the store.
class ReviewPrompt final : public ReviewRequests {
public:
    /// `isForeground` tells whether the program's window is in front. The references outlive this object.
    ReviewPrompt(LinkOpener& links, const LocalizedTexts& texts, std::function<bool()> isForeground);

    /// From now on the sheet stands over the screens of `stack`, which outlives this object's use.
    void showOver(ui::PresentationStack& stack);

    [[nodiscard]] bool hasForegroundScene() const override { return isForeground_(); }
    void requestReview() override;

private:
    void show();

    ui::PresentationStack* stack_ = nullptr;
    LinkOpener& links_;
    const LocalizedTexts& texts_;
    std::function<bool()> isForeground_;
    bool waiting_ = false; ///< for a slide to end
    Subscription stackChanges_;
};

} // namespace tessivo
