#include "UnsplashPicker/EmptyView.h"

#include "UnsplashPicker/PickerServices.h"

namespace tessivo::unsplash {
namespace {

std::string keyOf(EmptyViewState state) {
    switch (state) {
    case EmptyViewState::noResults:
        return "error.noResults";
    case EmptyViewState::noInternetConnection:
        return "error.noInternetConnection";
    case EmptyViewState::serverError:
        return "error.serverError";
    }
    return {};
}

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
    titleLabel.setText(state ? services_.text(keyOf(*state) + ".title") : "");
    descriptionLabel.setText(state ? services_.text(keyOf(*state) + ".description") : "");
}

} // namespace tessivo::unsplash
