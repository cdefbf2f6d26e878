#include "Extension/TabBar/CustomTabBarController.h"

#include "Event/EventCoreData.h"
#include "Event/FetchEventDataType.h"
#include "Extension/TabTitleColors.h"
#include "Interface/NavigationController.h"
#include "MainVC/MainViewController.h"
#include "Ports/Console.h"
#include "Ports/LocalizedTexts.h"
#include "Ports/MainQueue.h"
#include "Ports/SavedSettings.h"
#include "Support/Feedback/AlertManager.h"
#include "Support/Feedback/RateUs.h"
#include "Support/ScreenFactory.h"
#include "Support/SettingKeys.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr double leastBarHeight = 64;
constexpr double roomUnderAddButton = 12;
constexpr double addButtonDivisor = 5.86;
constexpr double addButtonOffsetDivisor = 11.72;
constexpr double largestAddButton = 72; // of a large screen: a button is no larger for a larger finger
constexpr double roomOverAddButton = 16;

} // namespace

CustomTabBarController::CustomTabBarController(SharedServices& services)
    : TabBarController(services.window()),
      SlideTransitions(services.window().animations),
      services_(services) {}

void CustomTabBarController::viewDidLoad() {
    services_.platform().settings.setBoolean(settingKeys::isFirstLaunch, true);
    services_.fetchEventDataType().refreshEvents();
    view().setAccessibilityName("Tessivo");
    addButton.setImageName("addButton");
    addButton.setBackgroundColor(ui::ColorRef::clear());
    addButton.setAccessibilityName(services_.platform().texts.localizedString("Add Event"));
    addButton.addTarget(ui::PressEvent::UpInside, [this] { addEvent(); });
    tabBar.setBackgroundColor(ui::ColorRef::white());
    view().addSubview(tabBar);
    view().addSubview(addButton);
    placeBar();
}

void CustomTabBarController::viewWillAppear() {
    delegate = weakSelf<ui::TabBarControllerDelegate>(this);
    const auto defaultScreen = services_.platform().settings.integer(settingKeys::defaultScreen);
    if (!defaultScreen)
        services_.platform().console.stopProgram("The first tab is not set.");
    const auto titleColor = ui::ColorRef::named(*defaultScreen == 0 ? "pastColor" : "futureColor");
    const auto& texts = services_.platform().texts;
    setViewControllers({std::make_shared<MainViewController>(services_, ListType::Past),
                        std::make_shared<MainViewController>(services_, ListType::Future)},
                       {{texts.localizedString("Past"), "Past", "pastSelect", titleColor, {}},
                        {texts.localizedString("Future"), "Future", "futureSelect", titleColor, {}}});
    placeBar();
    applySelectedTitleColors(tabBar);
    setSelectedIndex(static_cast<std::size_t>(*defaultScreen));
    setNavigationBarHidden(false);
}

void CustomTabBarController::viewWillDisappear() {
    setNavigationBarHidden(true);
}

void CustomTabBarController::setNavigationBarHidden(bool hidden) {
    if (auto* around = dynamic_cast<ui::NavigationController*>(parent()))
        around->setNavigationBarHidden(hidden);
}

void CustomTabBarController::viewDidAppear() {
    const Platform& platform = services_.platform();
    // Asking for the network loads what watches it: no other launch has a use for the answer.
    const bool mayPrompt = platform.settings.integer(settingKeys::secondOpen) == 2;
    platform.mainQueue.post(
        [this, weak = weak_from_this(),
         text = mayPrompt ? rateUsText(platform.settings, platform.network) : std::string()] {
            if (const auto standing = weak.lock())
                promptForRating(text);
        });
}

void CustomTabBarController::promptForRating(const std::string& rateUs) {
    SavedSettings& settings = services_.platform().settings;
    const auto secondOpen = [&] {
        const auto launches = settings.integer(settingKeys::secondOpen);
        if (!launches)
            services_.platform().console.stopProgram("The launch counter cannot be read.");
        return *launches;
    };
    if (secondOpen() == 2 && rateUs == "0") {
        settings.setInteger(settingKeys::secondOpen, 3);
        services_.alertManager().requestReview();
    }
    if (secondOpen() == 2 && rateUs == "1") {
        settings.setInteger(settingKeys::secondOpen, 3);
        services_.alertManager().showRateAlert(*this);
    }
}

void CustomTabBarController::placeBar() {
    const double width = screen().width();
    const double byWidth = width / addButtonDivisor;
    const double size = screen().isLarge() ? std::min(largestAddButton, byWidth) : byWidth;
    const double overhang = size * addButtonDivisor / addButtonOffsetDivisor;
    const double barHeight = std::max(leastBarHeight, size - overhang + roomUnderAddButton);
    const double top = screen().height() - barHeight;
    tabBar.setFrame({0, top, width, barHeight});
    addButton.setFrame({(width - size) / 2, top - overhang, size, size});
    for (const auto& list : viewControllers()) {
        if (auto* cards = dynamic_cast<MainViewController*>(list.get()))
            cards->collection.setContentInset({0, 0, barHeight + overhang + roomOverAddButton, 0});
    }
}

void CustomTabBarController::addEvent() {
    auto wizard = services_.screens().makeAddWizard();
    wizard->modalPresentationStyle = ui::PresentationStyle::Custom;
    wizard->transitioningDelegate = weakSelf<ui::TransitioningDelegate>(this);
    present(std::move(wizard));
}

void CustomTabBarController::showEvent(const EventCoreData& event) {
    setSelectedIndex(event.eventType() ? 1 : 0);
    applySelectedTitleColors(tabBar);
    if (auto* list = dynamic_cast<MainViewController*>(selectedViewController()); list && event.id())
        list->scrollToEvent(*event.id());
}

} // namespace tessivo
