#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessivo {

class Device;
class LocalizedTexts;
class MailComposing;
struct Bundle;

namespace ui {
class ViewController;
struct WindowContext;
} // namespace ui

/// Writes to the support on the user's behalf. Main thread.
class MailManager {
public:
    /// `recipient` is the support's address. The references outlive the manager.
    MailManager(ui::WindowContext& window, MailComposing& mail, const LocalizedTexts& texts,
                const Device& device, const Bundle& bundle, std::string recipient);

    const std::string systemVersion;
    const std::string deviceName;
    const std::string buildNumber;
    const std::string appVersion;
    std::weak_ptr<ui::ViewController> controller; ///< the presenter of the last mail

    /// Opens a mail to the support that names device and version, with the file at `attachment` where one is
    /// given. Where the machine cannot send mail, and where its mail program does not take this one, an alert
    /// says so over `presenter`.
    void send(ui::ViewController& presenter, const std::optional<std::string>& attachment = std::nullopt);

private:
    void showError(const std::string& message);

    ui::WindowContext& window_;
    MailComposing& mail_;
    const LocalizedTexts& texts_;
    std::string recipient_;
};

} // namespace tessivo
