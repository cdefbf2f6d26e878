#include "Interface/Button.h"

#include <utility>

namespace tessivo::ui {

void Button::setTitle(std::string title) {
    title_ = std::move(title);
    notify(ViewChange::Content);
}

void Button::setImageName(std::string name) {
    imageName_ = std::move(name);
    notify(ViewChange::Content);
}

void Button::setFont(Font font) {
    font_ = font;
    notify(ViewChange::Content);
}

void Button::setTint(ColorRef color) {
    tint_ = std::move(color);
    notify(ViewChange::Content);
}

void Button::setTitleColor(ColorRef color) {
    titleColor_ = std::move(color);
    notify(ViewChange::Content);
}

void Button::setEnabled(bool enabled) {
    enabled_ = enabled;
    notify(ViewChange::Content);
}

void Button::setMenu(Menu menu) {
    menu_ = std::move(menu);
    notify(ViewChange::Content);
}

void Button::setShowsMenuAsPrimaryAction(bool shows) {
    showsMenuAsPrimaryAction_ = shows;
    notify(ViewChange::Content);
}

void Button::addTarget(PressEvent event, std::function<void()> target) {
    presses_.add([event, target = std::move(target)](PressEvent happened) {
        if (happened == event)
            target();
    });
}

void Button::press(PressEvent event) {
    const bool wasDown = std::exchange(isDown_, event == PressEvent::Down);
    if (!enabled_ || !takesActs()) {
        // A press that has begun is let go of, so that nothing keeps looking pressed.
        if (wasDown && event != PressEvent::Down)
            presses_.emit(PressEvent::UpOutside);
        isDown_ = false;
        return;
    }
    if (event == PressEvent::UpInside && showsMenuAsPrimaryAction_)
        menuRequests_.emit();
    else
        presses_.emit(event);
}

void Button::tap() {
    press(PressEvent::Down);
    press(PressEvent::UpInside);
}

} // namespace tessivo::ui
