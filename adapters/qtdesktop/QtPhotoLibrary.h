#pragma once

#include "Ports/PhotoLibrary.h"
#include "qtdesktop/DesktopPortal.h"

#include <QPointer>

namespace tessivo {

/// The desktop's file chooser, among pictures of the kinds that can be read here: the portal's or, where none
/// answers, that of kdialog or zenity. Needs a running QGuiApplication.
class QtPhotoLibrary final : public PhotoLibrary {
public:
    explicit QtPhotoLibrary(const QDBusConnection& bus) : portal_(bus) {}

    void choosePhoto(Chosen chosen) override;

private:
    void runChooser(Chosen chosen);

    QObject programs_; ///< owns the chooser that runs
    desktop::DesktopPortal portal_;
    QPointer<QObject> open_; ///< the choice that is not made yet
};

} // namespace tessivo
