#include "AddEventVC/TitleScreen.h"

#include "AddEventVC/Label.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {

TitleScreen::TitleScreen(SharedServices& services)
    : WizardScreen(services),
      lengthRule_(localized("Title ("), maxLength, services.platform().textCounting, CountLabel) {}

void TitleScreen::buildField(const std::string& title, PreviewView& card) {
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { nextButtonTapped(); });
    textField.setText(title);
    textField.setPlaceholder(texts().addTitle);
    textField.setFont({22, ui::FontWeight::Regular});
    textField.setBackgroundColor(ui::ColorRef::named("backText"));
    textField.setCornerRadius(16);
    textField.setTextInsets({10, 16, 10, 16});
    textField.delegate = weakSelf<ui::TextInputDelegate>(this);
    textField.addEditingChangedTarget([this] { textFieldDidChange(); });
    lengthRule_.show(title);
    for (ui::View* part : std::initializer_list<ui::View*>{&textField, &CountLabel, &card})
        view().addSubview(*part);
    bindTap(view(), [this] { handleTap(); });
}

bool TitleScreen::shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                   const std::string& replacement) {
    return lengthRule_.accept(input, range, replacement).has_value();
}

bool TitleScreen::shouldReturn(ui::TextInput& input) {
    input.endEditing();
    return true;
}

void TitleScreen::textFieldDidChange() {
    showTitle(textField.text());
    nextButton.setEnabled(!textField.text().empty());
}

} // namespace tessivo
