#pragma once

#include "Ports/TextSharing.h"
#include "qtdesktop/DesktopPortal.h"
#include "qtdesktop/DesktopPrograms.h"

namespace tessivo {

class MainQueue;

/// Sharing a text as a Linux desktop does it: the clipboard, and other programs through the desktop's portal
/// or the xdg tools. Needs a running QGuiApplication.
class QtTextSharing final : public TextSharing {
public:
    /// `mainQueue` outlives this object.
    QtTextSharing(const QDBusConnection& bus, MainQueue& mainQueue) : portal_(bus), mainQueue_(mainQueue) {}

    void copy(const std::string& text, Done done) override;
    void mail(const std::string& text, Done done) override;
    [[nodiscard]] bool canMessage() const override;
    void message(const std::string& text, Done done) override;

private:
    desktop::DesktopPortal portal_;
    desktop::DesktopPrograms programs_;
    MainQueue& mainQueue_;
};

} // namespace tessivo
