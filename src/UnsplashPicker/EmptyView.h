#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/Label.h"

#include <optional>

namespace tessivo::unsplash {

class PickerServices;

/// Why there is nothing to see.
enum class EmptyViewState { noResults, noInternetConnection, serverError };

/// What stands in the place of the grid when there is nothing to see.
class EmptyView final : public ui::View {
public:
    EmptyView(ui::ControlRegistry& controls, const PickerServices& services);

    ui::View containerView;
    ui::Label titleLabel;
    ui::Label descriptionLabel;

    [[nodiscard]] std::optional<EmptyViewState> state() const { return state_; }
    /// Empty clears both texts.
    void setState(std::optional<EmptyViewState> state);

private:
    const PickerServices& services_;
    std::optional<EmptyViewState> state_;
};

} // namespace tessivo::unsplash
