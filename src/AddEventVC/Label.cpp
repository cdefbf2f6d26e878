#include "AddEventVC/Label.h"

#include "Interface/Gestures.h"

namespace tessivo {

Label::Label(ui::ControlRegistry& registry, std::string name, std::string text)
    : ui::Label(registry, std::move(name)) {
    setFont({17, ui::FontWeight::Regular});
    setAlignment(ui::TextAlignment::Left);
    setText(std::move(text));
}

InfoLabel::InfoLabel(ui::ControlRegistry& registry, std::string name, std::string text)
    : ui::Label(registry, std::move(name)) {
    setTextColor(ui::ColorRef::named("disabled"));
    setAlignment(ui::TextAlignment::Left);
    setText(std::move(text));
}

void bindTap(ui::View& view, std::function<void()> tapped) {
    const auto recognizer = std::make_shared<ui::TapGestureRecognizer>();
    recognizer->addTarget(&view, [tapped = std::move(tapped)](ui::GestureRecognizer&) { tapped(); });
    view.addGestureRecognizer(recognizer);
}

} // namespace tessivo
