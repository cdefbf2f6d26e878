#pragma once

#include "Ports/MailComposing.h"
#include "qtdesktop/DesktopPortal.h"
#include "qtdesktop/DesktopPrograms.h"

namespace tessivo {

/// The user's mail program, through the desktop's portal or, where none answers, through xdg-email. Both take
/// plain text, which the message is turned into. Needs a running QGuiApplication.
class QtMailComposing final : public MailComposing {
public:
    explicit QtMailComposing(const QDBusConnection& bus) : portal_(bus) {}

    [[nodiscard]] bool canSendMail() const override;
    void compose(const MailMessage& message, Finished finished) override;

private:
    desktop::DesktopPortal portal_;
    desktop::DesktopPrograms programs_;
};

} // namespace tessivo
