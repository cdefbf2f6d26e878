#include "OnBordingVC/OnboardingViewController.h"

#include "AddEventVC/Palette.h"
#include "Interface/NavigationController.h"
#include "OnBordingVC/OnboardingCollectionViewCell.h"
#include "Support/LocalizationVariables.h"
#include "Support/ScreenFactory.h"

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "OnboardingCollectionViewCell";
constexpr std::size_t buttonGradientRow = 3; ///< of `sectionsGradient`: dark enough for white text
constexpr double buttonRadius = 16;

} // namespace

OnboardingViewController::OnboardingViewController(SharedServices& services)
    : Screen(services),
      SlideTransitions(services.window().animations),
      collectionView(controls, "collectionView",
                     std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Horizontal, 0)) {}

void OnboardingViewController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::named("mainBack"));
    view().setAccessibilityName("Tessivo");
    const auto background = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*background, sectionsGradient[buttonGradientRow], platform().colors,
                      platform().console);
    continueButton.insertSublayer(background, 0);
    continueButton.setCornerRadius(buttonRadius);
    continueButton.setFont({19, ui::FontWeight::Semibold});
    continueButton.setTitleColor(ui::ColorRef::white());
    continueButton.setTitle(texts().continueOnBoarding);
    continueButton.addTarget(ui::PressEvent::Down, [this] { fingerTap(); });
    continueButton.addTarget(ui::PressEvent::UpInside, [this] { nextPage(); });
    continueButton.addTarget(ui::PressEvent::UpOutside, [this] { fingerOutside(); });
    collectionView.isPagingEnabled = true;
    collectionView.registerCell(reuseIdentifier,
                                [] { return std::make_shared<OnboardingCollectionViewCell>(); });
    collectionView.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    collectionView.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    collectionView.setFrame(view().bounds());
    view().addSubview(collectionView);
    view().addSubview(continueButton);
    collectionView.reloadData();
}

void OnboardingViewController::fingerTap() {
    continueButton.setTitleColor(ui::ColorRef::named("buttonTap"));
}

void OnboardingViewController::fingerOutside() {
    continueButton.setTitleColor(ui::ColorRef::white());
}

void OnboardingViewController::nextPage() {
    continueButton.setTitleColor(ui::ColorRef::white());
    if (fix > 1)
        return showMainScreen();
    ++fix;
    collectionView.scrollToItem(fix, true);
}

void OnboardingViewController::showMainScreen() {
    auto main = std::make_shared<ui::NavigationController>(window(), services().screens().makeTabShell());
    main->modalPresentationStyle = ui::PresentationStyle::Custom;
    main->transitioningDelegate = weakSelf<ui::TransitioningDelegate>(this);
    present(std::move(main));
}

int OnboardingViewController::numberOfItems(ui::CollectionView&) {
    return static_cast<int>(props.size());
}

std::shared_ptr<ui::CollectionViewCell> OnboardingViewController::cellForItem(ui::CollectionView& collection,
                                                                              int item) {
    const OnboardingSlide slide = props[static_cast<std::size_t>(item)];
    const auto cell = std::static_pointer_cast<OnboardingCollectionViewCell>(
        collection.dequeueReusableCell(reuseIdentifier));
    cell->configure(imageOf(slide), textOf(slide, texts()));
    return cell;
}

ui::Size OnboardingViewController::sizeForItem(ui::CollectionView& collection, int) {
    return collection.bounds().size();
}

void OnboardingViewController::willDisplayCell(ui::CollectionView&, ui::CollectionViewCell&, int item) {
    currentIndex = {0, item};
}

} // namespace tessivo
