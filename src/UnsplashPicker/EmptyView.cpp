#include "UnsplashPicker/EmptyView.h"

#include "UnsplashPicker/PickerServices.h"

#include <array>

namespace tessivo::unsplash {
namespace {

/// In the order of the states.
constexpr std::array keys{"error.noResults", "error.noInternetConnection", "error.serverError"};

} // namespace

EmptyView::EmptyView(ui::ControlRegistry& controls, const PickerServices& services)
    : View(controls, "emptyView"),
      containerView(controls, "emptyContainer"),
      titleLabel(controls, "emptyTitleLabel"),
      descriptionLabel(controls, "emptyDescriptionLabel"),
      services_(services) {
    titleLabel.setFont({24, ui::FontWeight::Semibold});
    titleLabel.setNumberOfLines(0);
    titleLabel.setAlignment(ui::TextAlignment::Center);
    descriptionLabel.setTextColor(ui::ColorRef::named("disabled"));
    descriptionLabel.setNumberOfLines(0);
    descriptionLabel.setAlignment(ui::TextAlignment::Center);
    setBackgroundColor(ui::ColorRef::named("mainBack"));
    addSubview(containerView);
    containerView.addSubview(titleLabel);
    containerView.addSubview(descriptionLabel);
}

void EmptyView::setState(std::optional<EmptyViewState> state) {
    state_ = state;
    const std::string key = state ? keys[static_cast<std::size_t>(*state)] : "";
    titleLabel.setText(state ? services_.text(key + ".title") : "");
    descriptionLabel.setText(state ? services_.text(key + ".description") : "");
}

} // namespace tessivo::unsplash
