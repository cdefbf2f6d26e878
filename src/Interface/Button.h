#pragma once

#include "Interface/Menu.h"
#include "Interface/View.h"

namespace tessivo::ui {

/// Where a press of a button begins and ends.
enum class PressEvent { Down, UpInside, UpOutside };

/// Text, a picture by its resource name, or both, that does something when it is tapped. It starts enabled.
class Button : public View {
public:
    using View::View;

    [[nodiscard]] const std::string& title() const { return title_; }
    void setTitle(std::string title);
    [[nodiscard]] const std::string& imageName() const { return imageName_; }
    void setImageName(std::string name);
    [[nodiscard]] const Font& font() const { return font_; }
    void setFont(Font font);
    [[nodiscard]] const ColorRef& tint() const { return tint_; }
    void setTint(ColorRef color);
    /// The title's colour in the present state: "disabled" while the button is.
    [[nodiscard]] ColorRef titleColor() const { return enabled_ ? titleColor_ : ColorRef::named("disabled"); }
    void setTitleColor(ColorRef color);
    [[nodiscard]] bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] const Menu& menu() const { return menu_; }
    void setMenu(Menu menu);
    /// Whether letting go on the button opens its menu, and calls no UpInside target. Off at first.
    [[nodiscard]] bool showsMenuAsPrimaryAction() const { return showsMenuAsPrimaryAction_; }
    void setShowsMenuAsPrimaryAction(bool shows);

    /// Called at each such event while the button takes acts, in the order of adding.
    void addTarget(PressEvent event, std::function<void()> target);

    /// The user presses, lets go on the button, or lets go beside it.
    void press(PressEvent event);
    /// Down and up inside in one: a tap, a key, an accessibility press.
    void tap();

    /// Called when the button asks the window to open its menu.
    [[nodiscard]] Subscription onMenuRequest(std::function<void()> requested) {
        return menuRequests_.subscribe(std::move(requested));
    }

private:
    std::string title_;
    std::string imageName_;
    Font font_;
    ColorRef tint_;
    ColorRef titleColor_ = ColorRef::black();
    Menu menu_;
    Signal<PressEvent> presses_;
    Signal<> menuRequests_;
    bool enabled_ = true;
    bool showsMenuAsPrimaryAction_ = false;
    bool isDown_ = false; ///< pressed, and not let go of yet
};

} // namespace tessivo::ui
