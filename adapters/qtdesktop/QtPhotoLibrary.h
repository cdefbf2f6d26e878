#pragma once

#include "Ports/PhotoLibrary.h"
#include "qtdesktop/DesktopPortal.h"

#include <QPointer>

#include <filesystem>

namespace tessivo {

/// The desktop's file chooser, among pictures of the kinds that can be read here: the portal's or, where none
/// answers, that of kdialog or zenity. Needs a running QGuiApplication.
class QtPhotoLibrary final : public PhotoLibrary {
public:
    /// `folder` is for the files that it keeps; made when the first one is written.
    QtPhotoLibrary(const QDBusConnection& bus, std::filesystem::path folder)
        : portal_(bus), folder_(std::move(folder)) {}

    void choosePhoto(Chosen chosen) override;
    Result<Url> keep(std::string_view data) override;

private:
    void runChooser(Chosen chosen);

    QObject programs_; ///< owns the chooser that runs
    desktop::DesktopPortal portal_;
    std::filesystem::path folder_;
    QPointer<QObject> open_; ///< the choice that is not made yet
};

} // namespace tessivo
