#include "MainVC/MainViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/FetchEventDataType.h"
#include "Extension/TabTitleColors.h"
#include "MainVC/EventCell.h"
#include "Ports/Calendar.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Ports/Timers.h"
#include "Support/CardSize.h"
#include "Support/LocalizationVariables.h"
#include "Support/ScreenFactory.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "EventCell";
constexpr double topInset = 10;
constexpr double cardSpacing = 16;
constexpr Seconds minute{60.0};

} // namespace

MainViewController::MainViewController(SharedServices& services, ListType listType)
    : Screen(services),
      SlideTransitions(services.window().animations),
      type(listType),
      collection(controls, "collection",
                 std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, cardSpacing, topInset)),
      coreDataManager(services.makeCoreDataStack()) {}

MainViewController::~MainViewController() = default;

void MainViewController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::named("mainBack"));
    titleLabel.setFont({32, ui::FontWeight::Bold});
    titleLabel.setText("Tessivo");
    settingButton.setImageName("gearshapeFill");
    settingButton.setAccessibilityName(texts().setting);
    settingButton.addTarget(ui::PressEvent::UpInside, [this] { settingButtonTapped(); });
    collection.setAccessibilityName(localized(type == ListType::Past ? "Past" : "Future"));
    for (ui::Label* label : {&mainlabel, &hintLabel}) {
        label->setTextColor(ui::ColorRef::named("disabled"));
        label->setAlignment(ui::TextAlignment::Center);
        label->setNumberOfLines(2);
    }
    setFonts();
    mainlabel.setText(texts().addEvent);
    collection.setBackgroundColor(ui::ColorRef::named("mainBack"));
    collection.registerCell(reuseIdentifier,
                            [&shared = services()] { return std::make_shared<EventCell>(shared); });
    collection.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    collection.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    collection.setFrame(view().bounds());
    view().addSubview(collection);
    view().addSubview(titleLabel);
    view().addSubview(settingButton);
    view().addSubview(mainlabel);
    view().addSubview(hintLabel);
    if (auto* tabs = dynamic_cast<ui::TabBarController*>(parent()))
        tabs->delegate = weakSelf<ui::TabBarControllerDelegate>(this);
}

void MainViewController::viewWillAppear() {
    scheduleTick();
    refreshAndReload();
}

void MainViewController::screenSizeDidChange() {
    if (setFonts())
        collection.reloadData(); // the cards' type changes too
    else
        collection.invalidateLayout();
}

bool MainViewController::setFonts() {
    const double size = screen().isLarge() ? 25 : 17;
    if (mainlabel.font().size == size)
        return false;
    mainlabel.setFont({size, ui::FontWeight::Regular});
    hintLabel.setFont({screen().isLarge() ? 20.0 : 15.0, ui::FontWeight::Regular});
    return true;
}

void MainViewController::scheduleTick() {
    const Instant now = platform().clock.now();
    DateComponents nextMinute = platform().calendar.components(now);
    *nextMinute.minute += 1;
    nextMinute.second = 0;
    const Seconds wait = platform().calendar.date(nextMinute) - now;
    services().keep(platform().timers.once(wait, [list = self()] { list->timerFired(); }));
}

void MainViewController::timerFired() {
    refreshAndReload();
    services().keep(platform().timers.repeating(minute, [list = self()] {
        list->services().fetchEventDataType().refreshEvents();
        list->collection.reloadData();
    }));
}

void MainViewController::refreshAndReload() {
    services().fetchEventDataType().refreshEvents();
    if (!collection.isTouched()) // or a finger would find no row for the card that it is on
        records = EventRows();
    collection.reloadData();
}

std::shared_ptr<MainViewController> MainViewController::self() {
    return std::static_pointer_cast<MainViewController>(shared_from_this());
}

void MainViewController::settingButtonTapped() {
    if (auto settings = services().screens().makeSettings(weakSelf<SettingControllerDelegate>(this)))
        present(std::move(settings));
}

void MainViewController::scrollToEvent(const Uuid& id) {
    if (!records)
        return;
    const auto found = std::ranges::find_if(*records, [&](const auto& row) { return row->id() == id; });
    if (found != records->end())
        collection.scrollToItem(static_cast<int>(found - records->begin()));
}

int MainViewController::numberOfItems(ui::CollectionView&) {
    EventRows rows = services().coreDataStack().fetchEvents();
    const bool future = type == ListType::Future;
    const auto fetched = rows.size();
    std::erase_if(rows, [future](const auto& row) { return row->eventType() != future; });
    const bool othersHaveEvents = rows.size() != fetched;
    records = std::move(rows);
    numberOfObjectsInSection = static_cast<int>(records->size());
    mainlabel.setHidden(numberOfObjectsInSection != 0);
    hintLabel.setHidden(numberOfObjectsInSection != 0);
    const char* hint = nullptr;
    if (othersHaveEvents)
        hint = future ? "All your events are under Past." : "All your events are under Future.";
    else
        hint = future ? "What lies ahead is counted down here." : "What is over is kept here.";
    hintLabel.setText(localized(hint));
    return numberOfObjectsInSection;
}

EventCoreData& MainViewController::rowAt(int item) {
    if (!records || item < 0 || static_cast<std::size_t>(item) >= records->size())
        platform().console.stopProgram("The list has no event " + std::to_string(item) + ".");
    return *(*records)[static_cast<std::size_t>(item)];
}

std::shared_ptr<ui::CollectionViewCell> MainViewController::cellForItem(ui::CollectionView& collectionView,
                                                                        int item) {
    const EventCoreData& row = rowAt(item);
    const auto cell =
        std::static_pointer_cast<EventCell>(collectionView.dequeueReusableCell(reuseIdentifier));
    cell->configure(row);
    cell->delegate = weakSelf<swipe::SwipeCollectionViewCellDelegate>(this);
    return cell;
}

ui::Size MainViewController::sizeForItem(ui::CollectionView&, int) {
    return cardSize(savedEventSize(platform()), screen());
}

void MainViewController::didSelectItem(ui::CollectionView& collectionView, int item) {
    const auto cell = std::static_pointer_cast<EventCell>(collectionView.cellForItem(item));
    if (cell && cell->recordID)
        slideIn(
            services().screens().makeFullEvent(services().makeCoreDataStack()->fetchEvent(*cell->recordID)));
}

void MainViewController::slideIn(std::shared_ptr<ui::ViewController> next) {
    if (!next)
        return;
    next->modalPresentationStyle = ui::PresentationStyle::Custom;
    next->transitioningDelegate = weakSelf<ui::TransitioningDelegate>(this);
    present(std::move(next));
}

void MainViewController::didSelectViewController(ui::TabBarController& tabs, ui::ViewController&) {
    applySelectedTitleColors(tabs.tabBar);
}

} // namespace tessivo
