#pragma once

#include "Extension/SlideTransitions.h"
#include "Interface/Button.h"
#include "Interface/TabBarController.h"
#include "Support/SharedServices.h"

namespace tessivo {

class EventCoreData;

/// The two lists, Past and Future, with the floating button that adds an event. Every flow that ends in the
/// lists ends in a new one of these, over all that stood.
class CustomTabBarController final : public ui::TabBarController,
                                     public ui::TabBarControllerDelegate,
                                     public SlideTransitions {
public:
    explicit CustomTabBarController(SharedServices& services);

    ui::Button addButton{controls, "addButton"};

    [[nodiscard]] std::string screenName() const override { return "CustomTabBarController"; }

    void addEvent();
    /// Shows the list that holds the event, scrolled to its card.
    void showEvent(const EventCoreData& event);
    /// The tabs themselves need nothing at a change of tab; the lists do.
    void didSelectViewController(ui::TabBarController&, ui::ViewController&) override {}

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void viewDidAppear() override;
    void screenSizeDidChange() override { placeBar(); }

private:
    void placeBar();
    void setNavigationBarHidden(bool hidden);
    /// At the second launch, once: asks for a review or how the user likes the program, as `rateUs` says.
    void promptForRating(const std::string& rateUs);

    SharedServices& services_;
};

} // namespace tessivo
