#pragma once

#include "Support/ScreenFactory.h"

namespace tessivo {

class SharedServices;

/// The program's screens.
class Screens : public ScreenFactory {
public:
    /// Before any screen is made: the services need the factory, and the screens need the services.
    void use(SharedServices& services) { services_ = &services; }

    [[nodiscard]] std::shared_ptr<ui::ViewController> makeTabShell() override;
    [[nodiscard]] std::shared_ptr<ui::ViewController> makeAddWizard() override;
    [[nodiscard]] std::shared_ptr<ui::ViewController>
    makeFullEvent(std::shared_ptr<EventCoreData> record) override;
    [[nodiscard]] std::shared_ptr<ui::ViewController>
    makeEdit(EditScreen kind, std::shared_ptr<EventCoreData> eventData) override;
    [[nodiscard]] std::shared_ptr<ui::ViewController>
    makeSettings(std::weak_ptr<SettingControllerDelegate> delegate) override;
    [[nodiscard]] std::shared_ptr<ui::ViewController> makeOnboarding() override;

private:
    SharedServices* services_ = nullptr;
};

} // namespace tessivo
