#include "SettingVC/SettingController.h"

#include "Ports/Console.h"
#include "Ports/ResourceFiles.h"
#include "Ports/SavedSettings.h"
#include "SettingVC/ApplicationsLayout.h"
#include "Support/Addresses.h"
#include "Support/LocalizationVariables.h"
#include "Support/SettingKeys.h"

#include <algorithm>
#include <limits>

namespace tessivo {
namespace {

using Kind = SettingSection::Kind;

constexpr double rowDivisor = 16.917; ///< of the screen's height
constexpr double smallestRow = 44;    ///< what a finger needs
constexpr double stripDivisor = 5.64; ///< likewise, for the applications
constexpr double applicationShare = 0.5;
constexpr double columnShare = 0.7; ///< of the strip's width
constexpr double headerHeight = 44;
constexpr double rowSpacing = 8;
constexpr double margin = 16;

const char* nameOf(Kind kind) {
    switch (kind) {
    case Kind::ourApplications:
        return "ourApplications";
    case Kind::feedback:
        return "feedback";
    case Kind::other:
        return "other";
    case Kind::publicDocuments:
        return "publicDocuments";
    }
    return "";
}

std::unique_ptr<ui::CollectionLayout> layoutFor(Kind kind) {
    if (kind == Kind::ourApplications)
        return std::make_unique<ApplicationsLayout>();
    return std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, rowSpacing);
}

} // namespace

struct SettingController::SectionViews {
    SectionViews(ui::ControlRegistry& registry, const std::string& name, Kind kind)
        : header(registry, name + ".header"), rows(registry, name, layoutFor(kind)) {}

    SettingHeaderReusableView header;
    ui::CollectionView rows;
};

SettingController::SettingController(SharedServices& services)
    : Screen(services),
      eventSizeTitles{localized("Small"), localized("Medium"), localized("Large")},
      defaultScreenTitles{localized("Past"), localized("Future")},
      sections(makeSettingSections(
          texts(), readApplications(platform().resources.read("applications.json").value_or(""),
                                    platform().json, platform().texts))) {
    modalPresentationStyle = ui::PresentationStyle::Sheet;
    sheetPresentation.height = std::numeric_limits<double>::infinity();
}

SettingController::~SettingController() = default;

void SettingController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::named("mainBack"));
    buildBar();
    for (const SettingSection& section : sections) {
        auto& added = *views_.emplace_back(
            std::make_unique<SectionViews>(controls, nameOf(section.kind), section.kind));
        added.header.label.setText(headingOf(section.kind));
        added.rows.setAccessibilityName(added.header.label.text());
        added.rows.registerCell("SettingCell", [] { return std::make_shared<SettingCell>(); });
        added.rows.registerCell("SpecialCell", [] { return std::make_shared<SpecialCell>(); });
        added.rows.registerCell("AppCell", [] { return std::make_shared<AppCell>(); });
        added.rows.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
        added.rows.delegate = weakSelf<ui::CollectionViewDelegate>(this);
        collectionView.addSubview(added.header);
        collectionView.addSubview(added.rows);
    }
    placeSections();
    for (const auto& section : views_)
        section->rows.reloadData();
}

std::string SettingController::headingOf(Kind kind) const {
    switch (kind) {
    case Kind::ourApplications:
        return texts().ourApplications;
    case Kind::feedback:
        return localized("General");
    case Kind::other:
        return localized("Feedback");
    case Kind::publicDocuments:
        return localized("Help and Legal");
    }
    return {};
}

void SettingController::buildBar() {
    mainLabel.setFont({20, ui::FontWeight::Bold});
    mainLabel.setText(texts().setting);
    view().setAccessibilityName(texts().setting);
    mainButton.setAccessibilityName(texts().setting);
    mainButton.addTarget(ui::PressEvent::UpInside, [this] { collectionView.setContentOffset({}); });
    doneButton.setFont({17, ui::FontWeight::Semibold});
    doneButton.setTitleColor(ui::ColorRef::named("button"));
    doneButton.setTitle(texts().done);
    doneButton.addTarget(ui::PressEvent::UpInside, [this] { doneButtonTapped(); });
    separationView.setBackgroundColor(ui::ColorRef::named("Line"));
    for (ui::View* part : std::initializer_list<ui::View*>{&collectionView, &separationView, &mainLabel,
                                                           &mainButton, &doneButton})
        view().addSubview(*part);
}

void SettingController::screenSizeDidChange() {
    placeSections();
    for (const auto& section : views_)
        section->rows.invalidateLayout();
}

void SettingController::placeSections() {
    const double rowHeight = sizeForItem(rowsOf(1), 0).height;
    const double header = screen().rowHeight(headerHeight);
    double y = 0;
    for (std::size_t index = 0; index < views_.size(); ++index) {
        const auto count = static_cast<double>(sections[index].items.size());
        const bool strip = sections[index].kind == Kind::ourApplications;
        const double height = strip ? screen().rowHeight(screen().height() / stripDivisor)
                                    : count * rowHeight + std::max(0.0, count - 1) * rowSpacing;
        views_[index]->header.setFrame({margin, y, screen().width() - 2 * margin, header});
        ui::CollectionView& rows = views_[index]->rows;
        // How wide the sheet is drawn is the window's, which tells it once it is there.
        const double width = rows.bounds().width > 0 ? rows.bounds().width : screen().width() - 2 * margin;
        rows.setFrame({margin, y + header, width, height});
        y += header + height;
    }
    collectionView.setContentSize({screen().width(), y + margin});
}

ui::CollectionView& SettingController::rowsOf(int section) {
    return views_.at(static_cast<std::size_t>(section))->rows;
}

int SettingController::sectionOf(const ui::CollectionView& collection) const {
    const auto found =
        std::ranges::find_if(views_, [&](const auto& section) { return &section->rows == &collection; });
    return static_cast<int>(found - views_.begin());
}

int SettingController::numberOfItems(ui::CollectionView& collection) {
    return static_cast<int>(sections[static_cast<std::size_t>(sectionOf(collection))].items.size());
}

std::shared_ptr<ui::CollectionViewCell> SettingController::cellForItem(ui::CollectionView& collection,
                                                                       int item) {
    const SettingSection& section = sections[static_cast<std::size_t>(sectionOf(collection))];
    const SettingItem& row = section.items[static_cast<std::size_t>(item)];
    const auto fill = [&](auto cell) {
        cell->configure(row);
        return cell;
    };
    if (section.kind == Kind::ourApplications)
        return fill(std::static_pointer_cast<AppCell>(collection.dequeueReusableCell("AppCell")));
    if (section.kind != Kind::feedback)
        return fill(std::static_pointer_cast<SettingCell>(collection.dequeueReusableCell("SettingCell")));
    const auto cell =
        fill(std::static_pointer_cast<SpecialCell>(collection.dequeueReusableCell("SpecialCell")));
    cell->showValue(savedValue(item));
    return cell;
}

std::string SettingController::savedValue(int row) const {
    const SavedSettings& settings = platform().settings;
    const auto& titles = row == 0 ? eventSizeTitles : defaultScreenTitles;
    const auto value = settings.integer(row == 0 ? settingKeys::eventSize : settingKeys::defaultScreen);
    const auto last = static_cast<long>(titles.size()) - 1;
    const bool known = value && *value >= 0 && *value < last;
    return titles[static_cast<std::size_t>(known ? *value : last)];
}

ui::Size SettingController::sizeForItem(ui::CollectionView& collection, int) {
    if (sectionOf(collection) == 0)
        return {collection.bounds().width * columnShare,
                screen().rowHeight(screen().height() / stripDivisor * applicationShare)};
    return {collection.bounds().width,
            screen().rowHeight(std::max(smallestRow, screen().height() / rowDivisor))};
}

void SettingController::didSelectItem(ui::CollectionView& collection, int item) {
    collection.deselectItem(item); // a row that was chosen does not stay lit
    didSelect({sectionOf(collection), item});
}

void SettingController::didSelect(ui::IndexPath path) {
    const SettingSection& section = sections.at(static_cast<std::size_t>(path.section));
    if (path.row < 0 || static_cast<std::size_t>(path.row) >= section.items.size())
        return platform().console.print("");
    switch (section.kind) {
    case Kind::ourApplications:
        return open(std::string(addresses::store) + *section.items[static_cast<std::size_t>(path.row)].id);
    case Kind::feedback:
        if (path.row == 0)
            return handleViewLiveTap(eventSizeTitles, settingKeys::eventSize, 0, path);
        return handleViewLiveTap(defaultScreenTitles, settingKeys::defaultScreen, 1, path);
    case Kind::other:
        return path.row == 0 ? rate() : shareTheApp();
    case Kind::publicDocuments:
        if (path.row == 0)
            return writeToSupport();
        return open(path.row == 1 ? addresses::termsOfUse : addresses::privacyPolicy);
    }
}

void SettingController::handleViewLiveTap(const std::vector<std::string>& titles, std::string_view key,
                                          int type, ui::IndexPath path) {
    const auto value = platform().settings.integer(key);
    if (!value)
        return;
    const auto options = std::make_shared<DefaulScreenViewController>(services());
    options->dataArray = titles;
    options->delegate = weakSelf<DefaulScreenViewControllerDelegate>(this);
    options->indexpath = path;
    options->type = type;
    options->selectedItem = *value;
    present(options);
}

void SettingController::didSelectOption(const std::string& text, int type, ui::IndexPath path) {
    if (const auto cell = std::dynamic_pointer_cast<SpecialCell>(rowsOf(path.section).cellForItem(path.row)))
        cell->showValue(text);
    if (type != 0)
        return;
    if (const auto list = delegateSettting.lock())
        list->reloadEvents();
}

} // namespace tessivo
