#include "SettingVC/DefaulScreenViewController.h"

#include "AddEventVC/Palette.h"
#include "Extension/EventCardText.h"
#include "Interface/Animation.h"
#include "Ports/SavedSettings.h"
#include "Support/CardSize.h"
#include "Support/LocalizationVariables.h"
#include "Support/SettingKeys.h"

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "cell";
constexpr double rowHeight = 52;
constexpr double barHeight = 64;
constexpr double margin = 16;
constexpr double cardRadius = 24;
constexpr double largestCardDivisor = 3.5; ///< of the screen's height
constexpr int sizeType = 0;
constexpr ui::EaseInOut resizing{Seconds(0.25)};

} // namespace

OptionCell::OptionCell() {
    label.setFont({17, ui::FontWeight::Regular});
    checkmarkImageView.setTint(ui::ColorRef::named("button"));
    contentView.addSubview(label);
    contentView.addSubview(checkmarkImageView);
}

DefaulScreenViewController::DefaulScreenViewController(SharedServices& services)
    : Screen(services),
      tableView(controls, "tableView", std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0)) {
    modalPresentationStyle = ui::PresentationStyle::Sheet;
}

void DefaulScreenViewController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::white());
    IslandView.setBackgroundColor(ui::ColorRef::named("Line"));
    titleLabel.setFont({20, ui::FontWeight::Bold});
    titleLabel.setText(type == sizeType ? texts().eventSize : texts().defaultScreen);
    view().setAccessibilityName(titleLabel.text());
    prevButton.setImageName("chevronbackward");
    prevButton.setTint(ui::ColorRef::named("button"));
    prevButton.setAccessibilityName(localized("Back"));
    prevButton.addTarget(ui::PressEvent::UpInside, [this] { dismiss(); });
    tableView.registerCell(reuseIdentifier, [] { return std::make_shared<OptionCell>(); });
    tableView.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    tableView.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    tableView.setAccessibilityName(titleLabel.text());
    for (ui::View* part :
         std::initializer_list<ui::View*>{&eventView, &tableView, &titleLabel, &IslandView, &prevButton})
        view().addSubview(*part);
    buildCard();
    const double list = static_cast<double>(dataArray.size()) * screen().rowHeight(rowHeight);
    // Room for the largest card, so that the rows stay where they are when another size is chosen.
    const double card = type == sizeType ? screen().height() / largestCardDivisor + margin : 0;
    sheetPresentation.height = barHeight + card + list + 2 * margin;
    tableView.setFrame({0, 0, screen().width(), list});
    tableView.reloadData();
}

void DefaulScreenViewController::buildCard() {
    const auto background = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*background, sectionsGradient[defaultGradientRow], platform().colors,
                      platform().console);
    background->setCornerRadius(cardRadius);
    eventView.setCornerRadius(cardRadius);
    eventView.insertSublayer(background, 0);
    eventView.addSubview(timeLabel);
    eventView.addSubview(eventInformationLabel);
    eventView.setHidden(type != sizeType);
    timeLabel.setNumberOfLines(2);
    timeLabel.setAlignment(ui::TextAlignment::Right);
    timeLabel.setStyledText(makeEventCardText(texts().days, texts().inACertain, screen()));
    eventInformationLabel.setNumberOfLines(2);
    eventInformationLabel.setAlignment(ui::TextAlignment::Left);
    eventInformationLabel.setStyledText(
        makeEventCardText(texts().dateOfEvent, texts().yourEventTitle, screen()));
    resizeCard();
}

void DefaulScreenViewController::screenSizeDidChange() {
    resizeCard();
}

void DefaulScreenViewController::resizeCard() {
    const EventSize* size = type == sizeType ? savedEventSize(platform()) : nullptr;
    if (!size)
        return;
    const ui::Rect frame{margin, 0, screen().width() - 2 * margin, screen().height() / size->heightDivisor};
    eventView.setFrame(frame);
    if (!eventView.sublayers().empty())
        eventView.sublayers().front()->setFrame({0, 0, frame.width, frame.height});
}

int DefaulScreenViewController::numberOfItems(ui::CollectionView&) {
    return static_cast<int>(dataArray.size());
}

std::shared_ptr<ui::CollectionViewCell>
DefaulScreenViewController::cellForItem(ui::CollectionView& collection, int item) {
    const auto cell = std::static_pointer_cast<OptionCell>(collection.dequeueReusableCell(reuseIdentifier));
    cell->label.setText(dataArray[static_cast<std::size_t>(item)]);
    cell->setAccessibilityName(cell->label.text());
    cell->checkmarkImageView.setImage(item == selectedItem ? ui::Image::named("blueCheck") : ui::Image());
    return cell;
}

ui::Size DefaulScreenViewController::sizeForItem(ui::CollectionView& collection, int) {
    return {collection.bounds().width, screen().rowHeight(rowHeight)};
}

void DefaulScreenViewController::didSelectItem(ui::CollectionView&, int item) {
    const std::string& text = dataArray.at(static_cast<std::size_t>(item));
    platform().settings.setInteger(type == sizeType ? settingKeys::eventSize : settingKeys::defaultScreen,
                                   item);
    if (didSelectItemCallback)
        didSelectItemCallback(text);
    if (const auto settings = delegate.lock())
        settings->didSelectOption(text, type, indexpath);
    if (type == sizeType) {
        const auto animator = ui::PropertyAnimator::make(window().animations, resizing);
        animator->addAnimations([this] { resizeCard(); });
        animator->startAnimation();
    }
}

} // namespace tessivo
