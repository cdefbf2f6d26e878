#pragma once

namespace tessivo {

/// The machine's own way to ask for a review of the program. Main thread.
class ReviewRequests {
public:
    virtual ~ReviewRequests() = default;

    /// Whether a window of the program is in the foreground and active.
    [[nodiscard]] virtual bool hasForegroundScene() const = 0;

    /// Asks the user for a review, over what stands on the screen. Whether they give one stays unknown.
    virtual void requestReview() = 0;
};

} // namespace tessivo
