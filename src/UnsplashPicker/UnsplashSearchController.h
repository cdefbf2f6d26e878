#pragma once

#include "Interface/Button.h"
#include "Interface/TextInput.h"

namespace tessivo::unsplash {

/// A field to search with. It has no cancel button: clearing the text is the way back.
class CustomSearchBar final : public ui::TextField {
public:
    using TextField::TextField;
};

/// The search of a screen: the field, and the button in it that empties it.
class UnsplashSearchController final {
public:
    UnsplashSearchController(ui::ControlRegistry& controls, std::string placeholder, std::string clearName)
        : searchBar(controls, "searchBar"), clearButton(controls, "clearButton") {
        searchBar.setPlaceholder(std::move(placeholder));
        searchBar.setBackgroundColor(ui::ColorRef::named("backText"));
        searchBar.setCornerRadius(12);
        searchBar.addEditingChangedTarget([this] { clearButton.setHidden(searchBar.text().empty()); });
        clearButton.setImageName("clear");
        clearButton.setTint(ui::ColorRef::named("disabled"));
        clearButton.setAccessibilityName(std::move(clearName));
        clearButton.setHidden(true);
        clearButton.addTarget(ui::PressEvent::UpInside, [this] { searchBar.editTo(""); });
    }
    UnsplashSearchController(const UnsplashSearchController&) = delete;
    UnsplashSearchController& operator=(const UnsplashSearchController&) = delete;

    CustomSearchBar searchBar;
    ui::Button clearButton;
};

} // namespace tessivo::unsplash
