#pragma once

#include "Interface/TextInput.h"

namespace tessivo::unsplash {

/// A field to search with. It has no cancel button: clearing the text is the way back.
class CustomSearchBar final : public ui::TextField {
public:
    using TextField::TextField;

    [[nodiscard]] bool showsCancelButton() const { return false; }
};

/// The search of a screen.
class UnsplashSearchController final {
public:
    UnsplashSearchController(ui::ControlRegistry& controls, std::string placeholder)
        : searchBar(controls, "searchBar") {
        searchBar.setPlaceholder(std::move(placeholder));
    }

    CustomSearchBar searchBar;
};

} // namespace tessivo::unsplash
