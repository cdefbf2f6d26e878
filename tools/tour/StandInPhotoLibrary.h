#pragma once

#include <QTemporaryDir>

namespace tessivo::tour {

/// A desktop whose file chooser always gives the same photo: a program in the place of the one that asks the
/// user, since nobody answers a real one here. To be made before the program under tour.
class StandInPhotoLibrary {
public:
    StandInPhotoLibrary();

private:
    QTemporaryDir folder_;
};

} // namespace tessivo::tour
