#pragma once

#include "AddEventVC/LengthRule.h"
#include "AddEventVC/WizardScreen.h"
#include "Extension/PreviewView.h"

namespace tessivo {

/// The title of an event, in the wizard and on the edit screen: a field with a limit, and a card that follows
/// each change. There is no way on without a title.
class TitleScreen : public WizardScreen, public ui::TextInputDelegate {
public:
    explicit TitleScreen(SharedServices& services);

    static constexpr int maxLength = 20;

    ui::TextField textField{controls, "textField"};
    ui::Label CountLabel{controls, "CountLabel"};

    virtual void nextButtonTapped() = 0;
    void handleTap() { textField.endEditing(); }
    void textFieldDidChange();

    [[nodiscard]] bool shouldReturn(ui::TextInput& input) override;
    /// Refuses an edit that would make the title longer than `maxLength` user-perceived characters.
    [[nodiscard]] bool shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                        const std::string& replacement) override;

protected:
    /// Builds the field with its counter, holding `title`, and `card` under it.
    void buildField(const std::string& title, PreviewView& card);
    /// Shows the title on the card.
    virtual void showTitle(const std::string& title) = 0;

private:
    LengthRule lengthRule_;
};

} // namespace tessivo
