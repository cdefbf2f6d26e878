#pragma once

#include "Extension/SlideTransitions.h"
#include "Extension/StoredEvent.h"
#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Support/Screen.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

class EventCoreData;

/// One event over the whole screen, with its menu: share, edit, delete.
///
/// It counts from the moment at which it was made, and shows the event anew at each appearance: an edit that
/// was left without Save shows here and nowhere else, since both screens hold the same object.
class FullEventViewController final : public Screen, public SlideTransitions {
public:
    explicit FullEventViewController(SharedServices& services);

    /// Set by the opener.
    std::shared_ptr<EventCoreData> record;
    const Instant currentDate;

    ui::ImageView eventImage{controls, "eventImage"};
    ui::Label timeLabel{controls, "timeLabel"};
    ui::Label eventInformationLabel{controls, "eventInformationLabel"};
    /// Opens the menu.
    ui::Button fillterButton{controls, "fillterButton"};
    ui::Button prevButton{controls, "prevButton"};

    [[nodiscard]] std::string screenName() const override { return "FullEventViewController"; }

    void prevButtonTapped() { dismiss(); }
    /// Offers a picture of the screen without its two buttons, which come back when it was taken.
    void share();
    void confirmDeletion();

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;

private:
    void showButtons(bool shown);
    void edit(EditScreen kind);
    /// Deletes the event with its pending notification, and shows the lists anew over this screen.
    void deleteEvent();
    void slideIn(std::shared_ptr<ui::ViewController> next);

    const StoredEvent event_;
};

} // namespace tessivo
