#pragma once

#include "Extension/SlideTransitions.h"
#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/IndexPath.h"
#include "OnBordingVC/OnboardingSlide.h"
#include "Support/Screen.h"

#include <vector>

namespace tessivo {

/// The tour of the first run: three slides and one button that goes through them, and on to the tabs. The
/// button counts its own presses; slides that the user turns by hand do not move the count.
class OnboardingViewController final : public Screen,
                                       public SlideTransitions,
                                       public ui::CollectionViewDataSource,
                                       public ui::CollectionViewDelegate {
public:
    explicit OnboardingViewController(SharedServices& services);

    const std::vector<OnboardingSlide> props{onboardingSlides.begin(), onboardingSlides.end()};
    /// The slide that came onto the screen last.
    ui::IndexPath currentIndex;
    ui::Button continueButton{controls, "continueButton"};
    ui::CollectionView collectionView;
    int fix = 0; ///< presses of the button that have turned a slide

    [[nodiscard]] std::string screenName() const override { return "OnboardingViewController"; }

    void fingerTap();
    void nextPage();
    void fingerOutside();

    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collection, int item) override;
    void willDisplayCell(ui::CollectionView& collection, ui::CollectionViewCell& cell, int item) override;

protected:
    void viewDidLoad() override;

private:
    void showMainScreen();
};

} // namespace tessivo
