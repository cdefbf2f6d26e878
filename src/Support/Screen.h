#pragma once

#include "Interface/ViewController.h"
#include "Ports/LocalizedTexts.h"
#include "Support/SharedServices.h"

namespace tessivo {

/// A screen of the program, with the services that it draws on.
class Screen : public ui::ViewController {
public:
    explicit Screen(SharedServices& services) : ViewController(services.window()), services_(services) {}

protected:
    [[nodiscard]] SharedServices& services() const { return services_; }
    [[nodiscard]] const Platform& platform() const { return services_.platform(); }
    [[nodiscard]] const LocalizationVariables& texts() const { return services_.localizationVariables(); }
    /// A text of the tables that stands under its English words.
    [[nodiscard]] std::string localized(std::string_view text) const {
        return platform().texts.localizedString(text);
    }

private:
    SharedServices& services_;
};

} // namespace tessivo
