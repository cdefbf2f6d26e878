#pragma once

#include "Interface/Menu.h"
#include "Support/ScreenFactory.h"

#include <array>
#include <functional>
#include <memory>

namespace tessivo {

class LocalizedTexts;
class SharedServices;

namespace ui {
class AlertController;
} // namespace ui

/// A screen that changes an event, as menus and sheets offer it; the title is a key of the text table.
struct EditChoice {
    EditScreen screen;
    const char* title;
    const char* symbol;
};

inline constexpr std::array editChoices{
    EditChoice{EditScreen::Title, "Edit Title", "textformat"},
    EditChoice{EditScreen::DateAndTime, "Edit Day & Time", "calendar"},
    EditChoice{EditScreen::Reminder, "Edit Reminder", "bell.badge"},
    EditChoice{EditScreen::Background, "Edit Background", "photo"},
};

/// "Edit" with the four screens under it.
[[nodiscard]] ui::MenuElement editMenu(const LocalizedTexts& texts,
                                       const std::function<void(EditScreen)>& edit);
[[nodiscard]] ui::MenuElement shareElement(const LocalizedTexts& texts, std::function<void()> share);
[[nodiscard]] ui::MenuElement deleteElement(const LocalizedTexts& texts, std::function<void()> remove);

/// Asks whether the event is to be deleted; `remove` is called on a yes.
[[nodiscard]] std::shared_ptr<ui::AlertController> deletionQuestion(SharedServices& services,
                                                                    std::function<void()> remove);

} // namespace tessivo
