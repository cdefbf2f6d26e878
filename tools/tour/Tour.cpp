#include "Tour.h"

#include "Inspection.h"
#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/Label.h"
#include "Interface/NavigationController.h"
#include "Interface/TabBarController.h"
#include "Interface/TextInput.h"
#include "Support/LocalizationVariables.h"
#include "app/Composition.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QQuickWindow>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace tessivo::tour {
namespace {

constexpr std::chrono::milliseconds settlingTime{900}; ///< the longest motion, and the frames around it
constexpr int everyYear = 5;                           ///< in the sheet of the repeats
constexpr double dragThreshold = 12;                   ///< what a drag uses up before anything moves
constexpr double wheelsTop = 8;                        ///< below the row that they belong to
constexpr double dayShares[] = {0.12, 0.47, 0.85};

} // namespace

Tour::Tour(Composition& program, const Stage& stage, const QDir& pictures)
    : program_(program),
      stage_(stage),
      pictures_(pictures),
      window_(*program.shell().window()),
      hand_(window_, [this] { settle(); }),
      texts_(stage.language, QLocale(QLatin1String(stage.locale))) {
    QAccessible::setActive(true);
}

void Tour::run() {
    window_.resize(stage_.size);
    program_.services().window().screen.setPreferences({.textScale = stage_.textScale});
    window_.requestActivate();
    waitFor("window", [this] { return window_.isExposed() && window_.isActive(); });
    settle();
    takeFirstTour();
    picture("empty");
    addEvent({"Summer Holiday 🏖️", 2, 1, 0, 1, -1, 1, true});
    addEvent({"Anna & Max: Wedding", 1, 2, 0, 2, 4, -1, false});
    addEvent({"A long-awaited trip!", -1, 0, 2, 3, -1, 8, false});
    addEvent({"Driving Test", 1, 0, 0, 0, 16, -1, false});
    addEvent({"Walk in the Hills", 1, 1, 0, 1, -1, -1, false, Picture::Service});
    addEvent({"Up Before the Sun", -1, 1, 1, 2, -1, -1, false, Picture::Library});
    hand_.tap(said("Future"));
    picture("future");
    useCards();
    openEvent();
    showPictureCards();
    addEvent({"First Day at Work", 0, -1, -2, 4, -1, 13, false});
    addEvent({"Moved House", -2, -1, 0, 1, 22, -1, false});
    hand_.tap(said("Past"));
    picture("past");
    useSettings();
}

void Tour::takeFirstTour() {
    picture("tour-1");
    const bool reversed = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    const double middle = stage_.size.width() / 2.0;
    const double reach = (reversed ? -0.4 : 0.4) * std::min(stage_.size.width(), 490);
    hand_.drag({middle + reach, 200}, {middle - reach, 200});
    picture("tour-2-by-finger");
    hand_.press(reversed ? Qt::Key_Right : Qt::Key_Left);
    for (const char* name : {"tour-2", "tour-3"}) {
        hand_.tap(nameOf("continueButton"));
        picture(name);
    }
    hand_.tap(nameOf("continueButton"));
}

void Tour::useSettings() {
    const auto& texts = program_.services().localizationVariables();
    hand_.tap(QString::fromStdString(texts.setting));
    picture("settings");
    hand_.tap(nameOfRow("feedback", 0));
    picture("event-size");
    auto& options = dynamic_cast<ui::CollectionView&>(*shown().controls.find("tableView"));
    hand_.tap(QString::fromStdString(options.cellForItem(2)->accessibilityName()));
    picture("event-size-large");
    hand_.tap(nameOf("prevButton"));
    hand_.tap(nameOfRow("feedback", 1));
    picture("default-screen");
    hand_.press(Qt::Key_Escape);
    hand_.press(Qt::Key_Tab);
    picture("settings-by-keyboard");
    hand_.tap(nameOf("doneButton"));
    picture("large-cards");
}

QString Tour::said(const char* words) const {
    return QString::fromStdString(program_.services().platform().texts.localizedString(words));
}

ui::ViewController& Tour::shown() const {
    ui::ViewController& top = *program_.stack().top();
    auto* frame = dynamic_cast<ui::NavigationController*>(&top);
    return frame ? frame->topViewController() : top;
}

void Tour::settle() {
    for (auto passed = std::chrono::milliseconds(0); passed < settlingTime;
         passed += virtualtime::stepLength) {
        virtualtime::step();
        program_.machine().waitForThreads();
    }
}

void Tour::holdAt(QPointF point) {
    hand_.hold(point, [this] {
        settle();
        return true;
    });
}

void Tour::waitFor(const char* what, const std::function<bool()>& done) {
    if (!runUntil(done))
        throw std::runtime_error(std::string("In vain the tour waits for: ") + what);
    settle();
}

ui::CollectionView& Tour::cards() const {
    const auto& tabs = dynamic_cast<ui::TabBarController&>(shown());
    return dynamic_cast<ui::CollectionView&>(*tabs.selectedViewController()->controls.find("collection"));
}

QPointF Tour::middleOfCard(int item) {
    return hand_.placeOf(QString::fromStdString(cards().cellForItem(item)->accessibilityName())).center();
}

void Tour::swipeCard(int item, const char* halfWay) {
    const QPointF middle = middleOfCard(item);
    hand_.drag(middle + QPointF(100, 0), middle - QPointF(80, 0),
               [&] { pictureIf(halfWay != nullptr, halfWay); });
}

void Tour::useCards() {
    swipeCard(0, "swipe");
    picture("open-row");
    hand_.tap(said("Edit"));
    picture("edit-sheet");
    hand_.tap(said("Cancel"));
    swipeCard(1, "swipe-solid");
    picture("open-row-solid");
    hand_.tap(said("Delete"));
    picture("delete-sheet");
    hand_.tap(QString::fromStdString(program_.services().localizationVariables().alertNo));
    hand_.tap(said("Share"));
    picture("share-sheet");
    hand_.tap(nameOf("cancelButton"));
    holdAt(middleOfCard(0));
    picture("menu");
    hand_.press(Qt::Key_Escape);
}

void Tour::openEvent() {
    hand_.tapAt(middleOfCard(0));
    picture("full");
    hand_.tap(nameOf("fillterButton"));
    picture("full-menu");
    hand_.press(Qt::Key_Escape);
    goBack();
    const std::pair<const char*, const char*> edits[] = {{"Edit Title", "edit-title"},
                                                         {"Edit Day & Time", "edit-date"},
                                                         {"Edit Reminder", "edit-reminder"},
                                                         {"Edit Background", "edit-background"}};
    for (const auto& [title, name] : edits) {
        swipeCard(0);
        hand_.tap(said("Edit"));
        hand_.tap(said(title));
        picture(name);
        goBack();
    }
}

void Tour::goBack() {
    hand_.tap(nameOf("prevButton"));
    hand_.tap(said("Future")); // the lists are made anew, on the tab of the user's choice
}

void Tour::addEvent(const Wish& wish) {
    hand_.tap(said("Add Event"));
    pictureIf(wish.inPictures, "title-empty");
    hand_.tap(nameOf("textField"));
    type(QString::fromUtf8(wish.title));
    pictureIf(wish.inPictures, "title");
    hand_.tap(nameOf("nextButton"));
    pictureIf(wish.inPictures, "date-empty");
    chooseDay(wish);
    if (wish.inPictures)
        chooseTimeAndRepeat(wish);
    hand_.tap(nameOf("nextButton"));
    pictureIf(wish.inPictures, "permission");
    if (wish.inPictures)
        hand_.tap(said("Allow"));
    pictureIf(wish.inPictures, "reminder-off");
    if (wish.inPictures)
        chooseReminder(wish);
    hand_.tap(nameOf("nextButton"));
    pictureIf(wish.inPictures, "background");
    if (wish.inPictures)
        browsePhotos();
    switch (wish.picture) {
    case Picture::None:
        chooseBackground(wish);
        break;
    case Picture::Service:
        choosePhoto();
        break;
    case Picture::Library:
        chooseFromLibrary();
        break;
    }
    hand_.tap(nameOf("nextButton"));
}

void Tour::type(const QString& text) {
    texts_.allow(text);
    hand_.commit(text);
}

void Tour::chooseDay(const Wish& wish) {
    const QString day = nameOfValue("dayLabel", "dayField");
    hand_.tap(day);
    const QRectF row = hand_.placeOf(day);
    turnWheel(row, 2, wish.years);
    turnWheel(row, 1, wish.months);
    turnWheel(row, 0, wish.days);
    pictureIf(wish.inPictures, "date-wheels");
    tapBeside();
    hand_.tap(said(
        std::initializer_list<const char*>{"Hours", "Days", "Weeks", "Months", "Years"}.begin()[wish.unit]));
}

void Tour::chooseTimeAndRepeat(const Wish& wish) {
    hand_.tap(said("All Day"));
    hand_.tap(nameOfValue("timeLabel", "timeField"));
    pictureIf(wish.inPictures, "time-wheels");
    tapBeside();
    hand_.tap(nameOfValue("repeatInfoLabel", "repeatLapel"));
    pictureIf(wish.inPictures, "repeat-sheet");
    dynamic_cast<ui::CollectionView&>(*shown().controls.find("tableView")).scrollToItem(everyYear);
    settle();
    hand_.tap(said("Every year"));
    const double sheetTop = std::max(24.0, stage_.size.height() - shown().sheetPresentation.height.value());
    hand_.drag({stage_.size.width() / 2.0, sheetTop + 12},
               {stage_.size.width() / 2.0, stage_.size.height() - 10.0});
    pictureIf(wish.inPictures, "date");
}

void Tour::chooseReminder(const Wish& wish) {
    hand_.tap(said("Reminder"));
    hand_.tap(nameOfValue("alertInfoLabel", "alertlabel"));
    pictureIf(wish.inPictures, "alert-sheet");
    hand_.tapAt({window_.width() / 2.0, 12});
    hand_.tap(nameOf("reminderMess"));
    type(QStringLiteral("Pack sunscreen, tickets and a good book"));
    tapBeside();
    pictureIf(wish.inPictures, "reminder");
}

void Tour::chooseBackground(const Wish& wish) {
    const char* strip = wish.color >= 0 ? "colorCollection" : "gradientCollection";
    const int item = wish.color >= 0 ? wish.color : wish.gradient;
    auto& collection = dynamic_cast<ui::CollectionView&>(*program_.stack().top()->controls.find(strip));
    collection.scrollToItem(item);
    settle();
    if (const auto cell = collection.cellForItem(item))
        hand_.tap(QString::fromStdString(cell->accessibilityName()));
    pictureIf(wish.inPictures, "background-chosen");
}

void Tour::turnWheel(QRectF rowAbove, int wheel, int rows) {
    if (rows == 0)
        return;
    const bool reversed = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    const double share = reversed ? 1 - dayShares[wheel] : dayShares[wheel];
    const double rowHeight = std::max(36.0, 20 * stage_.textScale + 14);
    const QPointF start(rowAbove.left() + rowAbove.width() * share,
                        rowAbove.bottom() + wheelsTop + 2.5 * rowHeight);
    const double slack = rows > 0 ? dragThreshold : -dragThreshold;
    hand_.drag(start, start - QPointF(0, rows * rowHeight + slack));
}

void Tour::tapBeside() {
    hand_.tapAt(hand_.placeOf(nameOf("titleLabel")).center());
}

QString Tour::nameOfRow(const char* section, int row) const {
    const auto& rows = dynamic_cast<const ui::CollectionView&>(*shown().controls.find(section));
    return QString::fromStdString(rows.cellForItem(row)->accessibilityName());
}

QString Tour::nameOfValue(const char* heading, const char* value) const {
    return nameOf(heading) + QStringLiteral(", ") + nameOf(value);
}

QString Tour::nameOf(const char* control) const {
    const ui::View* view = shown().controls.find(control);
    if (!view->accessibilityName().empty())
        return QString::fromStdString(view->accessibilityName());
    if (const auto* label = dynamic_cast<const ui::Label*>(view))
        return QString::fromStdString(label->text());
    if (const auto* button = dynamic_cast<const ui::Button*>(view))
        return QString::fromStdString(button->title());
    if (const auto* field = dynamic_cast<const ui::TextField*>(view))
        return QString::fromStdString(field->placeholder());
    return {};
}

void Tour::picture(const char* name) {
    for (const QString& fault : faultsOf(window_) + texts_.faultsOf(window_))
        qWarning("%s: %s", name, qPrintable(fault));
    window_.grabWindow().save(pictures_.filePath(QStringLiteral("%1-%2-%3.png")
                                                     .arg(QLatin1String(stage_.name))
                                                     .arg(++count_, 2, 10, QLatin1Char('0'))
                                                     .arg(QLatin1String(name))));
}

void Tour::pictureIf(bool wanted, const char* name) {
    if (wanted)
        picture(name);
}

} // namespace tessivo::tour
