#pragma once

#include "AddEventVC/WizardScreen.h"
#include "Event/EventItem.h"
#include "Extension/EventView.h"
#include "Interface/TextInput.h"

namespace tessivo {

/// The first step of the wizard: the title.
class EventTitleViewController final : public WizardScreen, public ui::TextInputDelegate {
public:
    explicit EventTitleViewController(SharedServices& services);

    static constexpr int maxLength = 20;

    EventView eventView;
    EventItem eventData;
    ui::TextField textField{controls, "textField"};
    ui::Label CountLabel{controls, "CountLabel"};

    [[nodiscard]] std::string screenName() const override { return "EventTitleViewController"; }

    void nextButtonTapped();
    void handleTap() { textField.endEditing(); }
    void textFieldDidChange();

    [[nodiscard]] bool shouldReturn(ui::TextInput& input) override;
    /// Refuses an edit that would make the title longer than `maxLength` user-perceived characters.
    [[nodiscard]] bool shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                        const std::string& replacement) override;

protected:
    void viewDidLoad() override;

private:
    void showPreview(const std::string& title);

    const std::string dateText;
    const std::string titleText;
};

} // namespace tessivo
