#pragma once

#include <memory>

namespace tessivo {

class LocalizationVariables;
class MailManager;
class MainQueue;
class ReviewRequests;

namespace ui {
class ViewController;
struct WindowContext;
} // namespace ui

/// Asks the user how they like the program. Main thread.
class AlertManager {
public:
    /// All of these outlive the manager.
    AlertManager(ui::WindowContext& window, const LocalizationVariables& texts, MailManager& mail,
                 ReviewRequests& reviews, MainQueue& mainQueue);

    std::weak_ptr<ui::ViewController> controller; ///< the presenter of the rate alert

    /// Asks over `presenter`: a no opens a mail to the support, a yes leads to a review.
    void showRateAlert(ui::ViewController& presenter);

    /// Asks the machine for a review, in a later turn of the main loop; not where no window of the program is
    /// in the foreground.
    void requestReview();

private:
    ui::WindowContext& window_;
    const LocalizationVariables& texts_;
    MailManager& mail_;
    ReviewRequests& reviews_;
    MainQueue& mainQueue_;
};

} // namespace tessivo
